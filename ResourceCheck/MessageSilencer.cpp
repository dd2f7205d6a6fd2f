#include "ResourceCheck/MessageSilencer.h"

#include <QString>

#include <cstdio>

namespace ResourceCheck
{

namespace
{

void printFatal(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message)
{
    if (type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", qUtf8Printable(message));
}

} // namespace

MessageSilencer::MessageSilencer()
    : previous(qInstallMessageHandler(printFatal))
{
}

MessageSilencer::~MessageSilencer()
{
    qInstallMessageHandler(previous);
}

} // namespace ResourceCheck
