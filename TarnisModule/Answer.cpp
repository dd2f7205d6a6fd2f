#include "TarnisModule/Answer.h"

#include "Common/DBusTools/DBusReply.h"
#include "TarnisModule/DeviceUiResources.h"

#include <QDBusMetaType>
#include <QFileInfo>

QDBusVariant Answer::value(const QVariant& value)
{
    DBusReply reply;
    reply.setValue(value);
    return QDBusVariant(QVariant::fromValue(reply));
}

QDBusVariant Answer::error(const QString& message)
{
    DBusReply reply;
    reply.setError(ErrorContainer::getDefaultErrorCode(), message);
    return QDBusVariant(QVariant::fromValue(reply));
}

QDBusVariant Answer::readableFile(const QString& path)
{
    const QString problem = fileProblem(path);
    return problem.isNull() ? value(path) : error(problem);
}

QString Answer::fileProblem(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return QStringLiteral("%1 does not exist").arg(path);
    if (!info.isFile())
        return QStringLiteral("%1 is not a regular file").arg(path);
    if (!info.isReadable())
        return QStringLiteral("%1 is not readable").arg(path);
    return QString();
}

void Answer::registerTypes()
{
    qDBusRegisterMetaType<DBusReply>();
    qDBusRegisterMetaType<DisplaySize>();
    qDBusRegisterMetaType<QList<DisplaySize>>();
}
