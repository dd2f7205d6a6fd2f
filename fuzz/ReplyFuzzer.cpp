// Whatever a service may answer with: written by libdbus, read by Qt, the reply record and the connector.
#define QT_LINKED_LIBDBUS
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisDeviceUiResourcesDBusConnector.h"
#include "fuzz/Claims.h"

#include <QDBusMetaType>

#include <dbus/dbus.h>
#include <fuzzer/FuzzedDataProvider.h>
#include <private/qdbusargument_p.h>

namespace
{

using Sizes = QList<QPair<QSize, QString>>;

const bool hasNoBus = qputenv("DBUS_SYSTEM_BUS_ADDRESS", "none:");
QVariant answer; // to every call of the connector

constexpr int deepestVariant = 3;

QByteArray readText(FuzzedDataProvider& input)
{
    return QString(input.ConsumeRandomLengthString().c_str()).toUtf8();
}

// Without file descriptors, which Qt does not close.
QByteArray readSignature(FuzzedDataProvider& input)
{
    const QByteArray signature = readText(input);
    return dbus_signature_validate_single(signature, nullptr) && !signature.contains('h') ? signature : "s";
}

void writeBasic(DBusMessageIter& out, int type, FuzzedDataProvider& input)
{
    if (dbus_type_is_fixed(type)) {
        const auto number = input.ConsumeIntegral<quint64>() & (type == DBUS_TYPE_BOOLEAN ? 1 : ~quint64(0));
        dbus_message_iter_append_basic(&out, type, &number);
        return;
    }
    QByteArray text = type == DBUS_TYPE_SIGNATURE ? readSignature(input) : readText(input);
    if (type == DBUS_TYPE_OBJECT_PATH && !dbus_validate_path(text, nullptr))
        text = "/";
    const char* const begin = text;
    dbus_message_iter_append_basic(&out, type, &begin);
}

void writeVariant(DBusMessageIter& out, const QByteArray& signature, FuzzedDataProvider& input, int depth);

void writeMembers(DBusMessageIter& out, DBusSignatureIter types, FuzzedDataProvider& input, int depth)
{
    do {
        const int type = dbus_signature_iter_get_current_type(&types);
        if (type == DBUS_TYPE_VARIANT) {
            writeVariant(out, depth < deepestVariant ? readSignature(input) : "s", input, depth + 1);
        } else if (dbus_type_is_basic(type)) {
            writeBasic(out, type, input);
        } else {
            DBusSignatureIter memberTypes;
            dbus_signature_iter_recurse(&types, &memberTypes);
            char* const signature = type == DBUS_TYPE_ARRAY ? dbus_signature_iter_get_signature(&memberTypes) : nullptr;
            DBusMessageIter members;
            dbus_message_iter_open_container(&out, type, signature, &members);
            for (int count = type == DBUS_TYPE_ARRAY ? input.ConsumeIntegral<quint8>() % 4 : 1; count > 0; --count)
                writeMembers(members, memberTypes, input, depth);
            dbus_message_iter_close_container(&out, &members);
            dbus_free(signature);
        }
    } while (dbus_signature_iter_next(&types));
}

void writeVariant(DBusMessageIter& out, const QByteArray& signature, FuzzedDataProvider& input, int depth)
{
    DBusSignatureIter types;
    DBusMessageIter content;
    dbus_signature_iter_init(&types, signature);
    dbus_message_iter_open_container(&out, DBUS_TYPE_VARIANT, signature, &content);
    writeMembers(content, types, input, depth);
    dbus_message_iter_close_container(&out, &content);
}

DBusMessage* newMessage(const QByteArray& signature, FuzzedDataProvider& input, int depth)
{
    DBusMessage* const message = dbus_message_new(DBUS_MESSAGE_TYPE_METHOD_CALL);
    DBusMessageIter out;
    dbus_message_iter_init_append(message, &out);
    writeVariant(out, signature, input, depth);
    return message;
}

// Takes the message.
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

QByteArray bytesOf(const QVariant& value)
{
    QDBusArgument argument;
    argument << QDBusVariant(value);
    return bytesOf(QDBusArgumentPrivate::d(argument)->message);
}

bool isContainer(const QByteArray& signature)
{
    return (signature.startsWith('(') || signature.startsWith('a')) && signature != "ay";
}

} // namespace

// Qt does not export what its header declares.
QDBusArgumentPrivate::~QDBusArgumentPrivate()
{
    dbus_message_unref(message);
}

QDBusDemarshaller::~QDBusDemarshaller() = default;

// The connector calls these instead of Qt's: there is no bus.
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
    static const TarnisDeviceUiResourcesDBusConnector connector;
    static const int types = qDBusRegisterMetaType<QPair<QSize, QString>>() + qDBusRegisterMetaType<Sizes>();
    FuzzedDataProvider input(data, size);
    FuzzedDataProvider again(data, size);
    const QByteArray signature = readSignature(input);
    readSignature(again);
    const QDBusVariant content = readByQt(newMessage(signature, input, 0));
    answer = QVariant::fromValue(content);
    DBusReply reply;
    const auto record = qvariant_cast<QDBusArgument>(content.variant());
    record >> reply;
    logRecords = 0;
    const Sizes sizes = connector.getSupportedDisplaySizes();
    const QString path = connector.getColorIniFilePath();
    answer = QVariant(); // Qt could not destroy it at the end of the process

    bool isError = true;
    int code = -1;
    QString text = "Unexpected D-Bus reply record: found signature \""
        + (isContainer(signature) && signature != "as" ? signature : "") + "\", expected \"(bisv)\"";
    QByteArray valueSignature;
    QByteArray value;
    if (signature == "(bisv)") {
        isError = again.ConsumeIntegral<quint64>() % 2 == 1;
        code = static_cast<int>(again.ConsumeIntegral<quint64>());
        text = readText(again);
        valueSignature = readSignature(again);
        DBusMessage* const message = newMessage(valueSignature, again, 1);
        value = bytesOf(message);
        dbus_message_unref(message);
    }
    requireEqual(reply.isError(), isError, "is it an error");
    requireEqual(reply.getError().getErrorCode(), isError ? code : 0, "error code");
    requireEqual(reply.getError().getErrorMessage(), isError ? text : "", "error message");
    requireEqual(reply.getValue().isValid(), !isError, "is there a value");
    if (!isError) {
        const bool isArgument = reply.getValue().userType() == qMetaTypeId<QDBusArgument>();
        requireEqual(isArgument, isContainer(valueSignature), "is the value held as an argument");
        requireEqual(bytesOf(reply.getValue()), value, "value");
    }
    const bool isSizes = !isError && valueSignature == "a((ii)s)";
    const bool isPath = !isError && !isContainer(valueSignature) && !QByteArray("ogvy").contains(valueSignature);
    requireEqual(logRecords, (isSizes ? 0 : 1) + (isPath ? 0 : 1), "warnings of the getters");
    requireEqual(isSizes ? bytesOf(QVariant::fromValue(sizes)) : value, value, "sizes");
    requireEqual(isSizes || sizes.isEmpty(), true, "no sizes");
    requireEqual(isPath && valueSignature == "s" ? bytesOf(path) : value, value, "path");
    requireEqual(isPath || path.isNull(), true, "no path");
    return types > 0 && hasNoBus ? 0 : -1;
}
