#pragma once

#include <QString>

/// An error code with its message. A default-constructed one is no error: code 0, null message.
class Q_DECL_EXPORT ErrorContainer
{
public:
    ErrorContainer() = default;

    /// Keeps both as they are.
    ErrorContainer(int errorCode, const QString& errorMessage);

    /// The code of every failure that has no code of its own: -1.
    static int getDefaultErrorCode();

    /// The code given, 0 when none was.
    int getErrorCode() const;

    /// The message given, null when none was.
    QString getErrorMessage() const;

private:
    int errorCode = 0;
    QString errorMessage;
};
