#pragma once

#include <QString>

/// An error code with its message. Default-constructed, it is not an error: code 0, null message.
class Q_DECL_EXPORT ErrorContainer
{
public:
    ErrorContainer() = default;

    /// An error with this code and message.
    ErrorContainer(int code, const QString& message);

    /// The code of failures that have no specific code: -1.
    static int getDefaultErrorCode();

    /// The code of the error, or 0.
    int getErrorCode() const;

    /// The message of the error, or a null string.
    QString getErrorMessage() const;

private:
    int errorCode = 0;
    QString errorMessage;
};
