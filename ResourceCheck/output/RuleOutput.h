#pragma once

#include <QByteArray>

namespace ResourceCheck
{

struct Rule;

/// One line for each rule with its name, severity and reason.
QByteArray ruleList();

/// A Markdown page with a section for each rule.
QByteArray rulePage();

/// A Markdown table of the log records of a device with the rules that announce them.
QByteArray recordTable();

/// The severity, the reason and the remedy of the rule, and how to silence it.
QByteArray explanation(const Rule& rule);

} // namespace ResourceCheck
