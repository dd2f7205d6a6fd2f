#include "ResourceCheck/fix/Patch.h"

#include "ResourceFormat/RegularFile.h"

#include <QFileInfo>
#include <QSaveFile>

namespace ResourceCheck
{

Patch::Patch(const QString& path)
    : filePath(path)
{
    QString problem;
    const QByteArray content = ResourceFormat::RegularFile::readAll(path, problem);
    const QString text = QString::fromUtf8(content);
    // The target of a link may be outside of the directory.
    isText = problem.isNull() && !QFileInfo(path).isSymLink() && text.toUtf8() == content;
    lines = text.split(QLatin1Char('\n'));
}

QString Patch::line(int number) const
{
    const auto edit = edits.constFind(number);
    return edit != edits.constEnd() ? edit->newText : lines.value(number - 1);
}

void Patch::add(const LineEdit& edit)
{
    const bool isRemoved = edits.contains(edit.line) && edits.value(edit.line).isRemoved;
    if (!isRemoved)
        edits.insert(edit.line, edit);
}

QByteArray Patch::diff() const
{
    QString text = QStringLiteral("--- %1\n+++ %1\n").arg(filePath);
    int removed = 0;
    for (const LineEdit& edit : edits) {
        const int number = edit.line - removed;
        const bool isLast = edit.line == lines.size();
        const QLatin1String end(isLast ? "\n\\ No newline at end of file\n" : "\n");
        text += QStringLiteral("@@ -%1 +%2 @@\n-%3%4")
                    .arg(QString::number(edit.line),
                         edit.isRemoved ? QStringLiteral("%1,0").arg(number - 1) : QString::number(number),
                         lines.value(edit.line - 1), end);
        text += edit.isRemoved ? QString() : QStringLiteral("+%1%2").arg(edit.newText, end);
        removed += edit.isRemoved ? 1 : 0;
    }
    return edits.isEmpty() ? QByteArray() : text.toUtf8();
}

QString Patch::apply() const
{
    if (edits.isEmpty())
        return QString();
    QString changed;
    for (int number = 1; number <= lines.size(); ++number) {
        const bool isLast = number == lines.size();
        const bool isRemoved = edits.contains(number) && edits.value(number).isRemoved;
        changed += isRemoved ? QString() : line(number) + QLatin1String(isLast ? "" : "\n");
    }
    QSaveFile file(filePath);
    const QByteArray content = changed.toUtf8();
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit();
    return isWritten
        ? QString()
        : QStringLiteral("cannot write \"%1\": %2; check its permissions").arg(filePath, file.errorString());
}

} // namespace ResourceCheck
