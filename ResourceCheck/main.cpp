#include "ResourceCheck/Check.h"
#include "ResourceCheck/Project.h"

#include <QGuiApplication>

#include <cstdio>

int main(int argc, char* argv[])
{
    const QGuiApplication application(argc, argv);
    const Project project{Resources(QGuiApplication::arguments().value(1)), {}, {}, {}};
    const QVector<Finding> findings = check(project, {});
    for (const Finding& finding : findings)
        std::printf("%s:%d:%d: %s: %s [%s]\n", qUtf8Printable(finding.place.path), finding.place.line,
                    finding.place.column, finding.severity == Severity::Error ? "error" : "warning",
                    qUtf8Printable(finding.message), qUtf8Printable(finding.rule));
    return findings.isEmpty() ? 0 : 1;
}
