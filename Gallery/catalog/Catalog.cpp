#include "Gallery/catalog/Catalog.h"

#include <utility>

namespace Gallery
{

Catalog::Catalog(const TarnisUi& tarnisUi)
    : ui(tarnisUi)
{
}

int Catalog::revision() const
{
    return currentRevision;
}

void Catalog::start()
{
    connect(&ui, &TarnisUi::answersChanged, this, &Catalog::follow);
    follow();
}

void Catalog::announce()
{
    ++currentRevision;
    Q_EMIT changed();
}

void Catalog::follow()
{
    const QmlHost::Answers old = std::exchange(answers, ui.answers());
    if (update(old, answers))
        announce();
}

} // namespace Gallery
