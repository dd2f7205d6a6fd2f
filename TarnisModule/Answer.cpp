#include "TarnisModule/Answer.h"

#include "Common/DBusTools/DBusReply.h"

#include <QDBusMetaType>
#include <QFileInfo>

namespace
{

QDBusVariant variantOf(const DBusReply& reply)
{
    static const int type = qDBusRegisterMetaType<DBusReply>();
    return QDBusVariant(QVariant(type, &reply));
}

} // namespace

namespace TarnisModule::Answer
{

QDBusVariant value(const QVariant& value)
{
    DBusReply reply;
    reply.setValue(value);
    return variantOf(reply);
}

QDBusVariant error(const QString& message)
{
    DBusReply reply;
    reply.setError(ErrorContainer::getDefaultErrorCode(), message);
    return variantOf(reply);
}

QDBusVariant readableFile(const QString& path)
{
    const QString problem = fileProblem(path);
    return problem.isNull() ? value(path) : error(problem);
}

QString fileProblem(const QString& path)
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

} // namespace TarnisModule::Answer
