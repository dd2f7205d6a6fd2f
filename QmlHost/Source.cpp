#include "QmlHost/Source.h"

#include <QThread>

namespace QmlHost
{

Source::Source()
{
    qRegisterMetaType<Answers>();
}

Source::~Source() = default;

bool Source::isStopRequested()
{
    return QThread::currentThread()->isInterruptionRequested();
}

} // namespace QmlHost
