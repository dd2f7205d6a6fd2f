#include "ResourceCheck/Project.h"
#include "ResourceCheck/rules/Rule.h"

namespace ResourceCheck
{

namespace
{

Rule::Check faultsOf(SvgFault::Kind kind)
{
    return [kind](const Project& project, const Report& report) {
        for (const SvgFault& fault : project.resources.iconFiles.svgFaults()) {
            if (fault.kind == kind)
                report(fault.place, fault.message);
        }
    };
}

using Kind = SvgFault::Kind;

// What Qt leaves out with a message in its log.
QVector<Rule> loggedRules()
{
    return {
        {QStringLiteral("svg-syntax"), Severity::Error,
         QStringLiteral("Qt cannot read the file, and no icon is shown."), faultsOf(Kind::Syntax),
         QStringLiteral("The file must be well-formed XML with the root element `<svg>`, a width and a height above 0, "
                        "and at most 2,048 nested elements. Save the picture again.")},
        {QStringLiteral("svg-reference"), Severity::Error,
         QStringLiteral("Qt leaves out what refers to something that does not exist or contains the reference."),
         faultsOf(Kind::Reference),
         QStringLiteral(
             "Correct `xlink:href=\"#id\"` or `fill=\"url(#id)\"`. `<use>` can copy groups and shapes only, and "
             "`fill` and `stroke` can refer to gradients and `<solidColor>` only: not to `<symbol>` and "
             "`<pattern>`.")},
        {QStringLiteral("svg-bomb"), Severity::Error,
         QStringLiteral(
             "A picture that copies itself many times blocks the user interface, or Qt leaves out a part of it."),
         faultsOf(Kind::Bomb),
         QStringLiteral(
             "Replace `<use>` with the shapes. At most 100,000 elements are allowed with all copies, and 256 "
             "copies at more than 4 levels of copies of copies.")},
        {QStringLiteral("svg-path"), Severity::Error,
         QStringLiteral("Qt draws a path only up to the first fault in its data."), faultsOf(Kind::Path),
         QStringLiteral(
             "Each command needs its number of coordinates, and a path can have 32,767 points. `d=\"M0 0 L10\"` "
             "lacks a number.")},
        {QStringLiteral("svg-structure"), Severity::Error,
         QStringLiteral("Qt leaves out an element in the wrong place or without a necessary attribute."),
         faultsOf(Kind::Structure),
         QStringLiteral("Shapes and groups can be in groups only, `<tspan>` in texts, `<stop>` in gradients. IDs of "
                        "gradients must be unique.")},
        {QStringLiteral("svg-image"), Severity::Error, QStringLiteral("Qt leaves out an image that it cannot read."),
         faultsOf(Kind::Image),
         QStringLiteral("Embed the image as PNG in base64, with a width and a height, or draw it with shapes.")},
    };
}

// What Qt draws in another way without a message.
QVector<Rule> silentRules()
{
    return {
        {QStringLiteral("svg-size"), Severity::Error,
         QStringLiteral("A huge picture needs much memory and time on a device before it is scaled down."),
         faultsOf(Kind::Size),
         QStringLiteral(
             "Set `width` and `height` to the intended size, at most 4096 pixels. A file has at most 2 MiB.")},
        {QStringLiteral("svg-external"), Severity::Error,
         QStringLiteral("Other files are not installed with the icon, and Qt does not load most of them."),
         faultsOf(Kind::External),
         QStringLiteral("Copy images, style sheets and gradients from other files into the picture.")},
        {QStringLiteral("svg-script"), Severity::Warning, QStringLiteral("Qt runs no scripts in pictures."),
         faultsOf(Kind::Script), QStringLiteral("Remove `<script>` and attributes such as `onload`.")},
        {QStringLiteral("svg-ignored"), Severity::Warning,
         QStringLiteral("Qt implements SVG 1.2 Tiny. It ignores the element, attribute or color, and the picture looks "
                        "different than in other programs."),
         faultsOf(Kind::Ignored),
         QStringLiteral("Convert the picture to plain shapes. Among what Qt ignores are `clip-path`, `mask`, `filter`, "
                        "`<symbol>`, `<pattern>`, `<marker>`, animations other than of transformations and colors, and "
                        "colors such as `rgba(0, 0, 0, 0.5)`. The content of an ignored element is drawn unless it is "
                        "in `<defs>`.")},
        {QStringLiteral("svg-empty"), Severity::Warning, QStringLiteral("The icon is invisible."),
         faultsOf(Kind::Empty), QStringLiteral("Draw something. Shapes in `<defs>` are not drawn by themselves.")},
    };
}

} // namespace

QVector<Rule> svgRules()
{
    return loggedRules() + silentRules();
}

} // namespace ResourceCheck
