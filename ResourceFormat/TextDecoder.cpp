#include "ResourceFormat/TextDecoder.h"

// Qt 6 has QTextCodec only in a library for programs that are being moved, which every host would have to install.
#if QT_VERSION_MAJOR < 6
#include <QTextCodec>
#else
#include <QStringDecoder>
#endif

namespace ResourceFormat
{

#if QT_VERSION_MAJOR < 6
class TextDecoder::Private
{
public:
    explicit Private(const char* codecName)
        : codec(QTextCodec::codecForName(codecName))
    {
    }

    QString decode(const char* bytes, int size)
    {
        QString text = codec->toUnicode(bytes, size, &state);
        if (!text.isEmpty())
            state.flags |= QTextCodec::IgnoreHeader; // a byte-order mark further down is text
        return text;
    }

    bool isValid() const { return codec != nullptr; }
    QByteArray name() const { return codec->name(); }
    int faultCount() const { return state.invalidChars; }
    bool isWithinCharacter() const { return state.remainingChars > 0; }

private:
    const QTextCodec* codec;
    QTextCodec::ConverterState state;
};
#else
class TextDecoder::Private : private QStringDecoder
{
public:
    using QStringDecoder::isValid;
    using QStringDecoder::name;
    using QStringDecoder::QStringDecoder;

    QString decode(const char* bytes, int size) { return QStringDecoder::decode(QByteArrayView(bytes, size)); }
    int faultCount() const { return static_cast<int>(state.invalidChars); }
    bool isWithinCharacter() const { return state.remainingChars > 0; }
};
#endif

bool TextDecoder::knows(const char* codec)
{
    return Private(codec).isValid();
}

TextDecoder::TextDecoder(const char* codec)
    : d(std::make_unique<Private>(codec))
{
}

TextDecoder::~TextDecoder() = default;

QString TextDecoder::decode(const char* bytes, int size)
{
    return d->decode(bytes, size);
}

QString TextDecoder::name() const
{
    return QString::fromLatin1(d->name());
}

int TextDecoder::faultCount() const
{
    return d->faultCount();
}

bool TextDecoder::isWithinCharacter() const
{
    return d->isWithinCharacter();
}

} // namespace ResourceFormat
