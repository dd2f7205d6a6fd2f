#include "ResourceCheck/fix/Patches.h"

#include "ResourceCheck/fix/Repair.h"

namespace ResourceCheck
{

namespace
{

std::optional<LineEdit> editOf(const Finding& finding, const Patch& patch, const Resources& resources)
{
    return patch.canChange() ? Repair::of(finding, patch.line(finding.place.line), resources) : std::nullopt;
}

} // namespace

QVector<Patch> Patches::of(const QVector<Finding>& findings, const Resources& resources)
{
    QVector<Patch> patches;
    QString path;
    // They are sorted by place. From the end, a repair does not move the places of those that follow.
    for (int index = findings.size() - 1; index >= 0; --index) {
        const Finding& finding = findings.at(index);
        if (finding.place.line < 1)
            continue;
        if (patches.isEmpty() || finding.place.path != path)
            patches.append(Patch(finding.place.path));
        path = finding.place.path;
        const std::optional<LineEdit> edit = editOf(finding, patches.last(), resources);
        if (edit)
            patches.last().add(*edit);
    }
    return patches;
}

void Patches::addRepairs(QVector<Finding>& findings, const Resources& resources)
{
    std::optional<Patch> file;
    QString path;
    for (Finding& finding : findings) {
        const int number = finding.place.line;
        if (number < 1)
            continue;
        if (!file || finding.place.path != path)
            file.emplace(finding.place.path);
        path = finding.place.path;
        const std::optional<LineEdit> edit = editOf(finding, *file, resources);
        if (edit)
            finding.repairs = {Replacement::of(*edit, file->line(number), file->isLast(number))};
    }
}

} // namespace ResourceCheck
