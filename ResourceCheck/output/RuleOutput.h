#pragma once

#include <QByteArray>

namespace ResourceCheck
{

struct Rule;

/// One line for each rule with its name, severity and reason.
QByteArray ruleList();

/// The severity and the reason of the rule, and how to silence it.
QByteArray explanation(const Rule& rule);

} // namespace ResourceCheck
