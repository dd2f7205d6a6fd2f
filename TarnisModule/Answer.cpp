#include "TarnisModule/Answer.h"

#include "Common/DBusTools/DBusReply.h"

#include <QDBusMetaType>

namespace TarnisModule::Answer
{

QDBusVariant of(const QVariant& value, const QString& problem)
{
    qDBusRegisterMetaType<DBusReply>();
    DBusReply reply;
    if (problem.isNull())
        reply.setValue(value);
    else
        reply.setError(ErrorContainer::getDefaultErrorCode(), problem);
    return QDBusVariant(QVariant::fromValue(reply));
}

} // namespace TarnisModule::Answer
