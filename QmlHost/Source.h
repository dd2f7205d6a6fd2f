#pragma once

#include "QmlHost/Answers.h"

#include <QObject>
#include <QString>

namespace QmlHost
{

/// Where the answers come from. A source lives on a worker thread, which calls start() once and ask() at any time
/// after it; both may block. It is deleted on that thread, after the call in progress.
class Source : public QObject
{
    Q_OBJECT

public:
    Source();
    ~Source() override;

    /// Asks for the first time, and again whenever there may be something new.
    virtual void start() = 0;

    /// Asks again and emits answered(), also if nothing has changed.
    virtual void ask() = 0;

Q_SIGNALS:
    /// `problem` is empty if every part is answered; otherwise it is a sentence that tells why not. The parts that are
    /// not answered keep the value of the answer before.
    void answered(const QmlHost::Answers& answers, const QString& problem);

protected:
    /// Whether the host ends, so that no further question may be asked. Call it from the worker thread.
    static bool isStopRequested();
};

} // namespace QmlHost
