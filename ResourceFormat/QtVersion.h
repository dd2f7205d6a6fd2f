#pragma once

#include <QFontDatabase>
#include <QLibraryInfo>

/// What Qt 5.15 and Qt 6 name differently.
namespace ResourceFormat::QtVersion
{

/// The names of the installed font families.
inline QStringList fontFamilies()
{
#if QT_VERSION_MAJOR < 6
    return QFontDatabase().families();
#else
    return QFontDatabase::families();
#endif
}

/// The folder of the QML modules that are installed with Qt.
inline QString qmlModules()
{
#if QT_VERSION_MAJOR < 6
    return QLibraryInfo::location(QLibraryInfo::Qml2ImportsPath);
#else
    return QLibraryInfo::path(QLibraryInfo::QmlImportsPath);
#endif
}

} // namespace ResourceFormat::QtVersion
