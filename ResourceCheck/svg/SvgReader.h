#pragma once

#include "ResourceCheck/svg/SvgElement.h"
#include "ResourceCheck/svg/SvgFaults.h"
#include "ResourceCheck/svg/SvgGraph.h"
#include "ResourceCheck/svg/SvgPaints.h"

#include <QXmlStreamReader>

namespace ResourceCheck
{

/// Reads an SVG file as a stream, makes the decisions of Qt Svg 5.15 without drawing anything, and finds what Qt will
/// not draw as intended. Files that are compressed or not SVG, and those
/// above 2 MiB, are not parsed.
class SvgReader
{
public:
    /// The path is that of the places of faults.
    SvgReader(const QString& path, const QByteArray& content);

    const QVector<SvgFault>& faults() const { return faultList; }

private:
    using Role = SvgVocabulary::Role;

    struct Element {
        Role role;
        bool isNode; // of the picture
    };

    void parse(const QByteArray& content);
    void readToken(QXmlStreamReader::TokenType token);
    void startElement();
    void endElement();
    bool addNode(const SvgElement& element);
    void readPart(const SvgElement& element);
    void readSpan(const SvgElement& element);
    void readSheet();
    void readDeclarations();
    void finish();
    void add(SvgFault::Kind kind, const QString& message) { found.add(kind, xml.characterOffset(), message); }

    QXmlStreamReader xml;
    QVector<Element> elements;
    QVector<Role> nodes;
    Role currentPaint = Role::Unknown; // whose parts are read
    SvgGraph graph;
    SvgPaints paints;
    SvgFaults found;
    QVector<SvgFault> faultList;
    QString textPosition;
    bool hasShape = false;
    bool isInSheet = false;
};

} // namespace ResourceCheck
