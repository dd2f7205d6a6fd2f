#include "ResourceCheck/svg/SvgReader.h"

#include "ResourceCheck/svg/SvgElementCheck.h"

namespace ResourceCheck
{

using Kind = SvgFault::Kind;

namespace
{

constexpr int maximumBytes = 2 * 1024 * 1024;
constexpr int maximumBlanks = 16;  // Qt does not take a file for SVG that begins with more
constexpr int maximumDepth = 2048; // Qt rejects deeper files

// Qt compares each attribute with all others of the element, which takes minutes for a file full of them.
bool hasTooManyAttributes(const QByteArray& content)
{
    constexpr int maximumAttributes = 2000;
    int count = 0;
    for (const char character : content) {
        count = character == '<' ? 0 : count;
        count += character == '=' ? 1 : 0;
        if (count > maximumAttributes)
            return true;
    }
    return false;
}

QString wrongParent(const QString& name)
{
    return QStringLiteral("Qt ignores <%1> inside this element; move it out").arg(name);
}

} // namespace

SvgReader::SvgReader(const QString& path, const QByteArray& content)
{
    if (content.size() > maximumBytes)
        found.add(Kind::Size, 0, QStringLiteral("the file is larger than 2 MiB; simplify the picture"));
    else if (hasTooManyAttributes(content))
        found.add(Kind::Size, 0, QStringLiteral("an element has more than 2,000 attributes; simplify the picture"));
    else if (content.left(maximumBlanks).trimmed().startsWith('<'))
        parse(content);
    faultList = found.located(path, content);
}

void SvgReader::parse(const QByteArray& content)
{
    xml.addData(content);
    xml.setNamespaceProcessing(false);
    while (!xml.atEnd() && elements.size() <= maximumDepth)
        readToken(xml.readNext());
    if (elements.size() > maximumDepth)
        add(Kind::Syntax, QStringLiteral("more than %1 elements are nested; simplify the picture").arg(maximumDepth));
    else if (xml.error() == QXmlStreamReader::CustomError)
        add(Kind::Syntax, QStringLiteral("the root element is not <svg>; save the picture again as SVG"));
    else if (xml.hasError())
        add(Kind::Syntax, QStringLiteral("invalid XML: %1; correct it here or shortly before").arg(xml.errorString()));
    else
        finish();
}

void SvgReader::readToken(QXmlStreamReader::TokenType token)
{
    if (token == QXmlStreamReader::StartElement)
        startElement();
    else if (token == QXmlStreamReader::EndElement)
        endElement();
    else if (token == QXmlStreamReader::Characters && isInSheet)
        readSheet();
    else if (token == QXmlStreamReader::DTD || token == QXmlStreamReader::ProcessingInstruction)
        readDeclarations();
}

void SvgReader::startElement()
{
    const QString name = xml.name().toString();
    const SvgElement element{name, SvgVocabulary::roleOf(name), xml.attributes(), xml.characterOffset()};
    SvgElementCheck check(element, found, paints);
    if (elements.isEmpty()) {
        if (name != QLatin1String("svg"))
            return xml.raiseError();
        check.checkRoot();
    }
    check.checkCommon();
    if (name == QLatin1String("path"))
        check.checkPath();
    const bool canBeNode = SvgVocabulary::isNode(element.role) && (element.role != Role::Image || check.checkImage());
    const bool isNode = canBeNode && addNode(element);
    if (!isNode)
        readPart(element);
    if (SvgVocabulary::isPaintServer(element.role))
        currentPaint = check.checkPaint() ? element.role : currentPaint;
    if (isNode || element.role == Role::Stop)
        check.checkProperties(SvgStyle::propertiesOf(element.attributes));
    elements.append({element.role, isNode});
}

// Parts of a gradient or font are read until an element that is not one ends.
void SvgReader::endElement()
{
    const Element element = elements.takeLast();
    isInSheet = false;
    if (element.isNode) {
        nodes.removeLast();
        graph.close();
    } else if (element.role != Role::Unknown && (elements.last().isNode || elements.last().role == Role::Unknown)) {
        currentPaint = Role::Unknown;
    }
}

// Returns whether there can be a node where the element is.
bool SvgReader::addNode(const SvgElement& element)
{
    const bool isSpan = element.role == Role::Span;
    const Role parent = nodes.isEmpty() ? Role::Group : nodes.last();
    const bool isInText = parent == Role::Text || parent == Role::TextArea;
    if (isSpan ? !isInText : parent != Role::Group) {
        add(Kind::Structure, wrongParent(element.name));
        return false;
    }
    const bool isDrawn = graph.open(element.attribute("id"), element.name == QLatin1String("defs"));
    nodes.append(element.role);
    const bool isEmptyPath = element.name == QLatin1String("path") && element.attribute("d").trimmed().isEmpty();
    hasShape = hasShape || (isDrawn && element.role != Role::Group && !isEmptyPath);
    if (element.role == Role::Use && !element.isExternal())
        graph.addUse(element.linkedId(), element.offset);
    else if (isSpan)
        readSpan(element);
    else
        textPosition = element.attribute("x") + QLatin1Char(' ') + element.attribute("y");
    return true;
}

void SvgReader::readPart(const SvgElement& element)
{
    graph.addOther(element.attribute("id"), element.name);
    if (SvgVocabulary::isUnknownDefinition(element.name) && graph.isDrawing()) {
        found.addOnce(
            Kind::Ignored, element.offset, element.name,
            QStringLiteral("Qt does not support <%1> and draws its content; move it into a <defs>").arg(element.name));
    }
    const bool isStop = element.role == Role::Stop && currentPaint != Role::Gradient;
    const bool isGlyph = element.role == Role::Glyph && currentPaint != Role::Font
        && !element.name.startsWith(QLatin1String("font-face-"));
    if (currentPaint != Role::Unknown && (isStop || isGlyph))
        add(Kind::Structure, wrongParent(element.name));
    if (element.name == QLatin1String("tbreak") && nodes.last() != Role::TextArea)
        add(Kind::Structure, wrongParent(element.name));
    const QString type = element.attribute("type");
    if (element.name == QLatin1String("style"))
        isInSheet = type.isEmpty() || type.compare(QLatin1String("text/css"), Qt::CaseInsensitive) == 0;
}

void SvgReader::readSpan(const SvgElement& element)
{
    const QString position = element.attribute("x") + QLatin1Char(' ') + element.attribute("y");
    if (position != textPosition && position != QLatin1String(" ")) {
        found.addOnce(Kind::Ignored, element.offset, element.name,
                      QStringLiteral("Qt ignores the position of a <tspan>; use a <text> for it"));
    }
}

void SvgReader::readSheet()
{
    const QString sheet = xml.text().toString();
    const SvgElement element{QString(), Role::Unknown, {}, xml.characterOffset()};
    SvgElementCheck(element, found, paints).checkProperties(SvgStyle::declarationsIn(sheet));
    if (sheet.contains(QLatin1String("@import")))
        add(Kind::External, QStringLiteral("the style sheet imports another one; copy it into the picture"));
}

void SvgReader::readDeclarations()
{
    if (xml.isProcessingInstruction() && xml.processingInstructionTarget() == QLatin1String("xml-stylesheet"))
        add(Kind::External, QStringLiteral("the style sheet is outside of the picture; copy it into a <style>"));
    for (const QXmlStreamEntityDeclaration& entity : xml.entityDeclarations()) {
        if (!entity.systemId().isEmpty()) {
            add(Kind::External,
                QStringLiteral("the entity \"%1\" is outside of the picture; write its text into the picture")
                    .arg(entity.name()));
        }
    }
}

void SvgReader::finish()
{
    if (!hasShape)
        found.add(Kind::Empty, 0, QStringLiteral("the picture has no shape; draw one or remove the file"));
    found.append(graph.faults());
    found.append(paints.faults());
}

} // namespace ResourceCheck
