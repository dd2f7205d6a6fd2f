#pragma once

#include <QtGlobal>

namespace ResourceCheck
{

/// Drops the messages of Qt in this thread while it exists. Qt still prints the reason before it aborts the program.
///
/// The first object installs a message handler that passes on all other messages to the handler before it.
class MessageSilencer
{
public:
    MessageSilencer();
    ~MessageSilencer();
    Q_DISABLE_COPY(MessageSilencer)
};

} // namespace ResourceCheck
