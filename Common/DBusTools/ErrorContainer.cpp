#include "Common/DBusTools/ErrorContainer.h"

ErrorContainer::ErrorContainer(int code, const QString& message)
    : errorCode(code)
    , errorMessage(message)
{
}

int ErrorContainer::getDefaultErrorCode()
{
    return -1;
}

int ErrorContainer::getErrorCode() const
{
    return errorCode;
}

QString ErrorContainer::getErrorMessage() const
{
    return errorMessage;
}
