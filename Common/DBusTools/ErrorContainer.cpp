#include "Common/DBusTools/ErrorContainer.h"

ErrorContainer::ErrorContainer(int errorCode, const QString& errorMessage)
    : errorCode(errorCode)
    , errorMessage(errorMessage)
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
