#pragma once

#include <QtGlobal>

namespace ResourceCheck
{

/// Drops the messages of Qt while it exists. Qt still prints the reason before it aborts the program.
class MessageSilencer
{
public:
    MessageSilencer();
    ~MessageSilencer();
    Q_DISABLE_COPY(MessageSilencer)

private:
    QtMessageHandler previous;
};

} // namespace ResourceCheck
