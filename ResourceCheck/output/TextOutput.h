#pragma once

#include "ResourceCheck/Finding.h"

#include <QByteArray>
#include <QVector>

struct Rule;

/// A line for each finding, as compilers write it.
QByteArray textOutput(const QVector<Finding>& findings, bool isColored);

/// How often each rule has found something, and the totals.
QByteArray summaryOutput(const QVector<Finding>& findings);

/// An array with an object for each finding.
QByteArray jsonOutput(const QVector<Finding>& findings);

/// One line: "3 errors, 1 warning".
QByteArray totals(const QVector<Finding>& findings);

/// A line for each rule: its name, severity and reason.
QByteArray ruleList();

QByteArray explanation(const Rule& rule);
