#include "ResourceCheck/svg/SvgGraph.h"

#include <algorithm>

namespace ResourceCheck
{

namespace
{

constexpr double maximumNodes = 100000; // of the whole picture
constexpr double maximumCopies = 256;   // Qt draws no more of them at more than this number of levels
constexpr int maximumLevels = 4;
constexpr int maximumDepth = 100; // of copies of copies
constexpr double endless = 1e9;

} // namespace

bool SvgGraph::open(const QString& id, bool isDefinition)
{
    const int index = nodes.size();
    const bool isParentDrawn = openNodes.isEmpty() || nodes.at(openNodes.last()).isDrawn;
    nodes.append({openNodes.isEmpty() ? -1 : openNodes.last(), index + 1, isParentDrawn && !isDefinition});
    openNodes.append(index);
    if (!id.isEmpty())
        nodesById.insert(id, index);
    return nodes.last().isDrawn;
}

void SvgGraph::close()
{
    nodes[openNodes.takeLast()].end = nodes.size();
}

void SvgGraph::addUse(const QString& target, qint64 offset)
{
    uses.append({openNodes.last(), target, offset});
}

void SvgGraph::addOther(const QString& id, const QString& element)
{
    if (!id.isEmpty())
        otherElements.insert(id, element);
}

// What the copies among these nodes draw.
SvgGraph::Extent SvgGraph::extentOfUses(int first, int end, bool onlyDrawn)
{
    Extent sum{0, 0, 0};
    auto use = std::lower_bound(uses.constBegin(), uses.constEnd(), first,
                                [](const Use& one, int node) { return one.node < node; });
    for (; use != uses.constEnd() && use->node < end && sum.nodes < endless; ++use) {
        if (targetOf(*use) < 0 || (onlyDrawn && !nodes.at(use->node).isDrawn))
            continue;
        const Extent extent = extentOf(targetOf(*use));
        sum.nodes += extent.nodes;
        sum.copies += extent.copies + 1;
        sum.levels = std::max(sum.levels, extent.levels + 1);
    }
    return sum;
}

SvgGraph::Extent SvgGraph::extentOf(int node)
{
    const Extent tooMuch{endless, endless, maximumDepth};
    const auto known = extents.constFind(node);
    if (known != extents.constEnd())
        return *known;
    if (depth > maximumDepth)
        return tooMuch;
    extents.insert(node, tooMuch); // if it leads to itself
    ++depth;
    Extent extent = extentOfUses(node, nodes.at(node).end, false);
    --depth;
    extent.nodes = std::min(endless, extent.nodes + nodes.at(node).end - node);
    extents.insert(node, extent);
    return extent;
}

// Why Qt cannot copy the target, and what to do; null if it can.
QString SvgGraph::faultOf(const Use& use) const
{
    const int target = targetOf(use);
    if (target >= 0 && !isInside(use.node, target))
        return QString();
    if (target >= 0)
        return QStringLiteral("\"#%1\" contains this <use>; refer to another element").arg(use.target);
    const QString other = otherElements.value(use.target);
    return other.isEmpty()
        ? QStringLiteral("\"#%1\" does not exist; correct the reference").arg(use.target)
        : QStringLiteral("\"#%1\" is a <%2>, which Qt cannot copy; refer to a <g> or a shape").arg(use.target, other);
}

bool SvgGraph::isTooMuch(const Use& use)
{
    const Extent extent = extentOf(targetOf(use));
    const bool isCut = extent.levels >= maximumLevels && extent.copies > maximumCopies;
    return extent.nodes >= endless || (isCut && nodes.at(use.node).isDrawn);
}

QVector<SvgFault> SvgGraph::faults()
{
    QVector<SvgFault> found;
    for (const Use& use : qAsConst(uses)) {
        const QString fault = faultOf(use);
        if (!fault.isNull()) {
            found.append({SvgFault::Kind::Reference, use.offset, fault});
        } else if (isTooMuch(use)) {
            found.append(
                {SvgFault::Kind::Bomb, use.offset,
                 QStringLiteral("\"#%1\" copies itself or too much, and Qt draws only a part; draw it directly")
                     .arg(use.target)});
        }
    }
    const double size = nodes.size() + extentOfUses(0, nodes.size(), true).nodes;
    if (found.isEmpty() && size > maximumNodes) {
        found.append({SvgFault::Kind::Bomb, uses.isEmpty() ? 0 : uses.first().offset,
                      QStringLiteral("the picture has more than %1 elements, with all copies by <use>; simplify it")
                          .arg(QString::number(maximumNodes, 'f', 0))});
    }
    return found;
}

} // namespace ResourceCheck
