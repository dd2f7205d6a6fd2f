// The answers of a service: written by libdbus, read by Qt, the reply record and the connectors.
#define QT_LINKED_LIBDBUS
#include "fuzz/Claims.h"
#include "tests/support/DBusValueMaker.h"
#include "tests/support/Expectation.h"

#include <fuzzer/FuzzedDataProvider.h>
#include <private/qdbusargument_p.h>

using namespace Tests;

namespace
{

const bool hasNoBus = qputenv("DBUS_SYSTEM_BUS_ADDRESS", "none:");
QVariant answer; // to every call of the connectors

struct Source {
    FuzzedDataProvider input;

    int below(int end) { return input.ConsumeIntegralInRange(0, end - 1); }
    qint64 bits() { return input.ConsumeIntegral<qint64>(); }
};

DBusMessage* write(const DBusValue& value)
{
    return DBusValue::appendTo(dbus_message_new(DBUS_MESSAGE_TYPE_METHOD_CALL), {value});
}

// Takes over the message.
QDBusVariant readByQt(DBusMessage* message)
{
    auto* const reader = new QDBusDemarshaller(0);
    reader->message = message;
    dbus_message_iter_init(message, &reader->iterator);
    QDBusVariant content;
    QDBusArgumentPrivate::create(reader) >> content;
    return content;
}

QByteArray bytesOf(DBusMessage* message)
{
    char* data = nullptr;
    int size = 0;
    dbus_message_marshal(message, &data, &size);
    QByteArray bytes(data, size);
    dbus_free(data);
    return bytes;
}

void checkRecord(const QVariant& recordReadByQt, const DBusValue& record)
{
    const QString error = Expectation::errorOf(record);
    const int code = record.signature == "(bisv)" ? record.members.at(1).basic.toInt() : -1;
    DBusReply reply;
    const auto argument = qvariant_cast<QDBusArgument>(recordReadByQt);
    argument >> reply;
    requireEqual(reply.isError(), !error.isNull(), "is it an error");
    requireEqual(reply.getError().getErrorCode(), reply.isError() ? code : 0, "error code");
    requireEqual(reply.getError().getErrorMessage(), error, "error message");
    requireEqual(reply.getValue().isValid(), error.isNull(), "is there a value");
    if (!error.isNull())
        return;
    const bool isArgument = reply.getValue().userType() == qMetaTypeId<QDBusArgument>();
    const DBusValue& variant = record.members.at(3);
    const DBusValue& value = variant.members.at(0);
    requireEqual(isArgument, value.isArgument() || value.signature == "as", "is the value passed on as an argument");
    QDBusArgument copy;
    copy << QDBusVariant(reply.getValue());
    DBusMessage* const message = write(variant);
    requireEqual(bytesOf(QDBusArgumentPrivate::d(copy)->message), bytesOf(message), "value");
    dbus_message_unref(message);
}

void checkGetters(const DBusValue& variant)
{
    static const Connectors connectors{};
    for (const Getter& getter : getters) {
        const Expectation expected = Expectation::of(getter, variant);
        logRecords = 0;
        const QString result = getter.ask(connectors);
        requireEqual(result, expected.result, "result of a getter");
        requireEqual(result.isNull(), expected.result.isNull(), "is there no result");
        requireEqual(logRecords, expected.records.size(), "warnings of a getter");
    }
}

} // namespace

// The header of Qt declares these, but Qt does not export them.
QDBusArgumentPrivate::~QDBusArgumentPrivate()
{
    dbus_message_unref(message);
}

QDBusDemarshaller::~QDBusDemarshaller() = default;

// The connectors call these instead of Qt's: there is no bus.
bool QDBusConnection::isConnected() const
{
    return true;
}

QDBusMessage QDBusAbstractInterface::doCall(QDBus::CallMode /*mode*/, const QString& method,
                                            const QVariant* /*arguments*/, size_t /*count*/)
{
    return QDBusMessage::createMethodCall("Module.Tarnis", "/", "Interface", method).createReply(answer);
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    Source source{{data, size}};
    const DBusValue variant = DBusValueMaker<Source>{source}.answer();
    const DBusValue& record = variant.members.at(0);
    if (Expectation::errorOf(record).isNull() && record.members.at(3).members.at(0).signature == "h")
        return 0; // Qt does not close it

    const QDBusVariant content = readByQt(write(variant));
    checkRecord(content.variant(), record);
    answer = QVariant::fromValue(content);
    checkGetters(variant);
    answer = QVariant(); // Qt could not destroy it at the end of the process
    return hasNoBus ? 0 : -1;
}
