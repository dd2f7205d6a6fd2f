#include "ResourceCheck/Baseline.h"

#include "ResourceFormat/RegularFile.h"

#include <QSaveFile>
#include <QStringList>

namespace ResourceCheck
{

namespace
{

const QString header = QStringLiteral("# Accepted findings of tarnis-resource-check; written by --update-baseline\n");

} // namespace

QString Baseline::read(const QString& path)
{
    QString problem;
    const QByteArray content = ResourceFormat::RegularFile::readAll(path, problem);
    if (!problem.isNull())
        return QStringLiteral("cannot read \"%1\": %2; create it with --update-baseline").arg(path, problem);
    for (const QString& line : QString::fromUtf8(content).split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        if (!line.startsWith(QLatin1Char('#')))
            entries.insert(line.section(QLatin1Char(' '), 0, 0), line);
    }
    return QString();
}

QString Baseline::write(const QString& path, const QVector<Finding>& findings)
{
    QString text = header;
    for (const Finding& finding : findings) {
        QString place = finding.place.path;
        place.replace(QLatin1Char('\n'), QLatin1Char('?'));
        text += QStringLiteral("%1 %2 %3\n").arg(finding.fingerprint, finding.rule, place);
    }
    QSaveFile file(path);
    const QByteArray content = text.toUtf8();
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit();
    return isWritten ? QString()
                     : QStringLiteral("cannot write \"%1\": %2; check the path").arg(path, file.errorString());
}

void Baseline::accept(QVector<Finding>& findings)
{
    for (Finding& finding : findings)
        finding.isAccepted = entries.remove(finding.fingerprint) > 0;
}

} // namespace ResourceCheck
