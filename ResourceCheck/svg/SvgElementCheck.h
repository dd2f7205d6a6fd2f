#pragma once

#include "ResourceCheck/svg/SvgElement.h"
#include "ResourceCheck/svg/SvgFaults.h"
#include "ResourceCheck/svg/SvgPaints.h"
#include "ResourceCheck/svg/SvgStyle.h"

namespace ResourceCheck
{

/// Finds what is wrong with an element by itself, wherever it is.
class SvgElementCheck
{
public:
    /// All of them must outlive this object.
    SvgElementCheck(const SvgElement& svgElement, SvgFaults& svgFaults, SvgPaints& svgPaints);

    void checkRoot();

    /// Checks what every element can have.
    void checkCommon();

    void checkPath();

    /// Returns whether Qt can show the image.
    bool checkImage();

    /// Defines a gradient or color. Returns whether Qt can use it, or the font.
    bool checkPaint();

    void checkProperties(const QVector<SvgProperty>& properties);

private:
    bool checkRadialGradient();
    void add(SvgFault::Kind kind, const QString& message) { faults.add(kind, element.offset, message); }
    void addOnce(SvgFault::Kind kind, const QString& key, const QString& message)
    {
        faults.addOnce(kind, element.offset, key, message);
    }

    const SvgElement& element;
    SvgFaults& faults;
    SvgPaints& paints;
};

} // namespace ResourceCheck
