#pragma once

#include "ResourceCheck/Project.h"

#include <QSet>
#include <QString>
#include <QStringList>

namespace Tests
{

/// What the checker announces for a front end on a resource directory after one of them has got a fault.
class Announcements
{
public:
    /// Both are without faults.
    Announcements(const QString& resourceDirectory, const QString& frontEnd);

    /// The findings without faults.
    QStringList initial() const;

    /// Checks the front end or the resources again, and the others as they were at first.
    void check(bool areResourcesChanged);

    /// Whether there is anything new.
    bool areThere() const { return !rules.isEmpty(); }

    /// Whether there is something new that announces the log record.
    bool announce(const QString& logged) const;

private:
    static QSet<QString> findings(const ResourceCheck::Project& project);

    QString resources;
    QString qml;
    ResourceCheck::Project initialProject;
    QSet<QString> known; // `RULE MESSAGE`
    QSet<QString> rules; // with new findings
};

} // namespace Tests
