#pragma once

#include <QDBusMetaType>
#include <QProcess>
#include <QVariant>

namespace Tests
{

/// Whether QVariant converts a byte to text, as the character with this number.
constexpr bool bytesAreText = QT_VERSION_MAJOR >= 6;

/// Converts the value to the type of the D-Bus signature.
inline void convertToSignature(QVariant& value, const QByteArray& signature)
{
#if QT_VERSION_MAJOR < 6
    value.convert(QDBusMetaType::signatureToType(signature));
#else
    value.convert(QDBusMetaType::signatureToMetaType(signature));
#endif
}

/// A process that calls a function in the child before it runs its program.
class PreparedProcess : public QProcess
{
public:
#if QT_VERSION_MAJOR < 6
    explicit PreparedProcess(void (*function)())
        : prepare(function)
    {
    }

protected:
    void setupChildProcess() override
    {
        prepare();
    }

private:
    void (*prepare)();
#else
    explicit PreparedProcess(void (*function)())
    {
        setChildProcessModifier(function);
    }
#endif
};

} // namespace Tests
