#pragma once

#include "ResourceCheck/svg/SvgFault.h"

#include <QHash>
#include <QVector>

namespace ResourceCheck
{

/// The nodes of a picture in the order of the file, and the copies that `use` elements make of them.
class SvgGraph
{
public:
    /// Adds a node below the innermost node that is open, and opens it. Returns whether it is drawn, which the nodes of
    /// a definition are not.
    bool open(const QString& id, bool isDefinition);
    void close();

    /// Whether the innermost open node is drawn.
    bool isDrawing() const { return !openNodes.isEmpty() && nodes.at(openNodes.last()).isDrawn; }

    /// The innermost open node is a copy of the node with the id.
    void addUse(const QString& target, qint64 offset);

    /// Notes the ID of an element that is not a node and cannot be copied.
    void addOther(const QString& id, const QString& element);

    /// The copies of nothing, of themselves or without end, and those that multiply the picture.
    QVector<SvgFault> faults();

private:
    struct Node {
        int parent;
        int end; // of its descendants
        bool isDrawn;
    };
    /// What Qt draws for a node.
    struct Extent {
        double nodes; // with all copies
        double copies;
        int levels; // of copies of copies
    };
    struct Use {
        int node;
        QString target;
        qint64 offset;
    };

    int targetOf(const Use& use) const { return nodesById.value(use.target, -1); }
    bool isInside(int node, int ancestor) const { return node >= ancestor && node < nodes.at(ancestor).end; }
    QString faultOf(const Use& use) const;
    bool isTooMuch(const Use& use);
    Extent extentOf(int node);
    Extent extentOfUses(int first, int end, bool onlyDrawn);

    QVector<Node> nodes;
    QVector<int> openNodes;
    QHash<QString, int> nodesById;
    QHash<QString, QString> otherElements; // names by IDs
    QVector<Use> uses;
    QHash<int, Extent> extents; // of the copied nodes
    int depth = 0;              // of the search
};

} // namespace ResourceCheck
