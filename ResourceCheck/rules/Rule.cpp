#include "ResourceCheck/rules/Rule.h"

#include <algorithm>

namespace ResourceCheck
{

const QVector<Rule>& allRules()
{
    static const QVector<Rule> rules = fileRules() + fileTreeRules() + iniRules() + colorRules() + fontRules()
        + dimensionRules() + dimensionValueRules() + iconTableRules() + iconFileRules() + iconImageRules() + svgRules()
        + textRules() + textContentRules() + glyphRules() + translationRules() + textComparisonRules() + qmlRules()
        + unusedRules();
    return rules;
}

const Rule* findRule(const QString& name)
{
    const auto hasName = [&name](const Rule& rule) { return rule.name == name; };
    const auto rule = std::find_if(allRules().begin(), allRules().end(), hasName);
    return rule != allRules().end() ? &*rule : nullptr;
}

} // namespace ResourceCheck
