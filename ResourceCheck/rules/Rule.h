#pragma once

#include "ResourceCheck/Severity.h"
#include "ResourceCheck/reading/Place.h"

#include <QString>
#include <QVector>

#include <functional>

namespace ResourceCheck
{

struct Project;

/// Receives the faults that a rule finds, in any order. The message says what is wrong and, after a semicolon, what to
/// do.
using Report = std::function<void(const Place& place, const QString& message)>;

/// Something that resources must not do. Each rule is one entry in the list of its subject below. `--list-rules`,
/// `--explain` and docs/checker-rules.md are made of these entries.
struct Rule {
    using Check = std::function<void(const Project& project, const Report& report)>;

    QString name;
    Severity severity; // the default
    QString reason;    // one sentence: what a device does with such a fault
    Check check;
    QString remedy{}; // how to repair it and, if that is not obvious, what exactly counts as a fault; in Markdown
};

/// All rules, in the order of the documentation.
const QVector<Rule>& allRules();

/// Null if no rule has the name.
const Rule* findRule(const QString& name);

QVector<Rule> fileRules();
QVector<Rule> fileTreeRules();
QVector<Rule> iniRules();
QVector<Rule> colorRules();
QVector<Rule> fontRules();
QVector<Rule> dimensionRules();
QVector<Rule> dimensionValueRules();
QVector<Rule> iconTableRules();
QVector<Rule> iconFileRules();
QVector<Rule> iconImageRules();
QVector<Rule> svgRules();
QVector<Rule> textRules();
QVector<Rule> textContentRules();
QVector<Rule> glyphRules();
QVector<Rule> translationRules();
QVector<Rule> textComparisonRules();
QVector<Rule> qmlRules();
QVector<Rule> unusedRules();

} // namespace ResourceCheck
