#include "TarnisModule/Answer.h"

#include "Common/DBusTools/DBusReply.h"

#include <QDBusMetaType>

namespace TarnisModule::Answer
{

QDBusVariant of(const QVariant& value, const QString& problem)
{
    static const int type = qDBusRegisterMetaType<DBusReply>();
    DBusReply reply;
    if (problem.isNull())
        reply.setValue(value);
    else
        reply.setError(ErrorContainer::getDefaultErrorCode(), problem);
    return QDBusVariant(QVariant(type, &reply));
}

} // namespace TarnisModule::Answer
