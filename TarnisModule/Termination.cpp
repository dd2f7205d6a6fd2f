#include "TarnisModule/Termination.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <csignal>
#include <cstdint>
#include <ctime>
#include <sys/eventfd.h>
#include <unistd.h>

namespace TarnisModule::Termination
{

namespace
{

constexpr long patienceNanoseconds = 500'000'000;

// Signal handlers reach nothing else.
int requests = -1; // an event descriptor
timer_t patience = nullptr;

void onTermination(int /*signal*/)
{
    const itimerspec timeout{{}, {0, patienceNanoseconds}};
    timer_settime(patience, 0, &timeout, nullptr);
    const std::uint64_t one = 1;
    const ssize_t written = write(requests, &one, sizeof(one));
    Q_UNUSED(written)
}

void onTimeout(int /*signal*/)
{
    _exit(EXIT_SUCCESS);
}

} // namespace

void install(QCoreApplication& application)
{
    requests = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    timer_create(CLOCK_MONOTONIC, nullptr, &patience); // it sends SIGALRM
    std::signal(SIGALRM, onTimeout);
    std::signal(SIGTERM, onTermination);
    std::signal(SIGINT, onTermination);
    auto* notifier = new QSocketNotifier(requests, QSocketNotifier::Read, &application);
    QObject::connect(notifier, &QSocketNotifier::activated, &application, &QCoreApplication::quit);
}

} // namespace TarnisModule::Termination
