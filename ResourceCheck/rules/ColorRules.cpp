#include "ResourceCheck/Project.h"
#include "ResourceCheck/Rule.h"

QVector<Rule> colorRules()
{
    return {};
}
