#include "ResourceCheck/MessageSilencer.h"

#include <QString>

#include <atomic>
#include <cstdio>

namespace ResourceCheck
{

namespace
{

thread_local int silencers = 0;
std::atomic<QtMessageHandler> previousHandler{nullptr};

void passOn(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    const QtMessageHandler handler = previousHandler;
    if (type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", qUtf8Printable(message));
    else if (silencers == 0 && handler != nullptr)
        handler(type, context, message);
}

} // namespace

MessageSilencer::MessageSilencer()
{
    static const bool isInstalled = [] {
        previousHandler = qInstallMessageHandler(passOn);
        return true;
    }();
    Q_UNUSED(isInstalled)
    ++silencers;
}

MessageSilencer::~MessageSilencer()
{
    --silencers;
}

} // namespace ResourceCheck
