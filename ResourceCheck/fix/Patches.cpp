#include "ResourceCheck/fix/Patches.h"

#include "ResourceCheck/fix/Repair.h"

namespace ResourceCheck
{

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
        Patch& patch = patches.last();
        const std::optional<LineEdit> edit = Repair::of(finding, patch.line(finding.place.line), resources);
        if (edit && patch.canChange())
            patch.add(*edit);
    }
    return patches;
}

} // namespace ResourceCheck
