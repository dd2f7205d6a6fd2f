#pragma once

#include "QmlHost/Answers.h"
#include "QmlHost/TarnisUi.h"

#include <QObject>

namespace Gallery
{

/// The names of the resources of one kind, and facts about their values that the handlers do not tell. The front end of
/// a device knows its names and needs no such class. QML gets one singleton of the module `Tarnis.Gallery` for each
/// kind, named after the class.
///
/// Lists are limited to the entries that contain the text `search`; upper and lower case are equal.
class Catalog : public QObject
{
    Q_OBJECT

    /// Increases with every change of the resources of this kind: read the lists again.
    Q_PROPERTY(int revision READ revision NOTIFY changed)

public:
    int revision() const;

Q_SIGNALS:
    void changed();

protected:
    /// Follows the answers of `tarnisUi`, which must outlive the catalog.
    explicit Catalog(const TarnisUi& tarnisUi);

    /// Reads the answers for the first time. Call it at the end of the constructor of each kind.
    void start();

    /// Increases the revision. For kinds that are read on a worker thread.
    void announce();

private:
    /// Reads the resources of this kind again if they have changed, and tells whether they have.
    virtual bool update(const QmlHost::Answers& old, const QmlHost::Answers& fresh) = 0;
    void follow();

    const TarnisUi& ui;
    QmlHost::Answers answers; // that the lists are read from
    int currentRevision = 0;
};

} // namespace Gallery
