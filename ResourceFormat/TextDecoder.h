#pragma once

#include <QString>

#include <memory>

namespace ResourceFormat
{

/// Decodes bytes to text, piece by piece. A byte-order mark at the beginning is not part of the text.
class TextDecoder
{
public:
    /// Whether this Qt has the text codec. Every Qt has UTF-8, UTF-16, UTF-32 and ISO-8859-1.
    static bool knows(const char* codec);

    /// The codec must be known.
    explicit TextDecoder(const char* codec);
    ~TextDecoder();
    Q_DISABLE_COPY_MOVE(TextDecoder)

    /// The next piece. Bytes that are not valid are replaced; a character that the piece cuts off begins the next one.
    QString decode(const char* bytes, int size);

    /// The canonical name of the codec.
    QString name() const;

    /// How many faults all pieces have.
    int faultCount() const;

    /// Whether the last piece ends within a character.
    bool isWithinCharacter() const;

private:
    class Private;

    std::unique_ptr<Private> d;
};

} // namespace ResourceFormat
