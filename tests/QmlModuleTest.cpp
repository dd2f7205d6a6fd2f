// Runs the QML tests of the folder qml, as qmltestrunner does.

#include <QtQuickTest>

QUICK_TEST_MAIN(QmlModuleTest)
