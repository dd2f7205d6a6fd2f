#pragma once

#include "ResourceCheck/Finding.h"

#include <QVector>

#include <functional>

struct Project;

/// Takes the faults that a rule finds, in any order.
using Report = std::function<void(const Place& place, const QString& message)>;

/// One thing that the resources must not do. A rule is one entry in the list of its file, below `rules/`.
struct Rule {
    QString name;
    Severity severity; // unless the user wants another
    QString reason;    // one sentence: what a device does with such a fault
    void (*check)(const Project& project, const Report& report);
};

/// All rules, in the order of the documentation.
const QVector<Rule>& allRules();

/// Null if no rule has the name.
const Rule* findRule(const QString& name);

QVector<Rule> fileRules();
QVector<Rule> iniRules();
QVector<Rule> colorRules();
QVector<Rule> fontRules();
QVector<Rule> dimensionRules();
QVector<Rule> iconRules();
QVector<Rule> textRules();
QVector<Rule> qmlRules();
QVector<Rule> unusedRules();
