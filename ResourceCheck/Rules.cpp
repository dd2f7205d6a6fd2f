#include "ResourceCheck/Rule.h"

const QVector<Rule>& allRules()
{
    static const QVector<Rule> rules = fileRules() + iniRules() + colorRules() + fontRules() + dimensionRules()
        + iconRules() + textRules() + qmlRules() + unusedRules();
    return rules;
}
