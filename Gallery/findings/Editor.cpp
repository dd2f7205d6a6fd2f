#include "Gallery/findings/Editor.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <QUrl>

#include <algorithm>

namespace Gallery
{

namespace
{

const QString filePlaceholder = QStringLiteral("{file}");

QString openInDesktop(const QString& path)
{
    if (QDesktopServices::openUrl(QUrl::fromLocalFile(path)))
        return QString();
    return QStringLiteral("the desktop has no program for %1; name one with --editor").arg(path);
}

} // namespace

Editor::Editor(const QString& commandLine)
    : command(commandLine)
{
}

QString Editor::open(const QString& path, int line, int column) const
{
    const QString file = QFileInfo(path).absoluteFilePath();
    QStringList arguments = QProcess::splitCommand(command);
    if (arguments.isEmpty())
        return openInDesktop(file);
    const QString program = arguments.takeFirst();
    if (arguments.filter(filePlaceholder).isEmpty())
        arguments.append(filePlaceholder);
    for (QString& argument : arguments) {
        argument.replace(QStringLiteral("{line}"), QString::number(std::max(line, 1)));
        argument.replace(QStringLiteral("{column}"), QString::number(std::max(column, 1)));
        argument.replace(filePlaceholder, file); // last: its name may contain the others
    }
    if (QProcess::startDetached(program, arguments))
        return QString();
    return QStringLiteral("cannot start \"%1\"; check the command of --editor").arg(program);
}

} // namespace Gallery
