#pragma once

#include "ResourceCheck/reading/IconDirectory.h"
#include "ResourceCheck/reading/IconTable.h"
#include "ResourceCheck/svg/SvgFault.h"

#include <QVector>

namespace ResourceCheck
{

/// The icon files that mapping tables list. Each is read once, even if several links lead to it.
class IconFiles
{
public:
    struct File {
        QFileInfo info;
        bool isChecked; // as SVG; a link to it with another suffix can have been checked instead
        QVector<SvgFault> svgFaults;
        QString imageFault; // null if there is none
        QByteArray digest;  // of the content
    };

    /// Reads the files on all processors.
    IconFiles(const IconDirectory& icons, const QVector<IconPath>& paths);

    /// The file at the path in the icon directory; null if it is not a file inside.
    const File* find(const QString& relativePath) const;

    /// What is wrong with SVG files, in the order of the paths.
    QVector<SvgFault> svgFaults() const;

private:
    static void read(File& file);

    std::vector<File> files;
    QHash<QString, size_t> numbers; // by path
};

} // namespace ResourceCheck
