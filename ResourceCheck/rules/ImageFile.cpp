#include "ResourceCheck/rules/ImageFile.h"

#include <QFileInfo>
#include <QHash>
#include <QImage>
#include <QImageReader>

namespace
{

class SilentLog
{
public:
    SilentLog()
        : before(qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {}))
    {
    }

    ~SilentLog() { qInstallMessageHandler(before); }

    Q_DISABLE_COPY(SilentLog)

private:
    const QtMessageHandler before;
};

// Formats under one name that one reader takes whatever the file is called.
QByteArray familyOf(const QByteArray& format)
{
    static const QHash<QByteArray, QByteArray> families{
        {"jpg", "jpeg"}, {"svgz", "svg"}, {"cur", "ico"}, {"pgm", "pbm"}, {"ppm", "pbm"}};
    return families.value(format, format);
}

bool isNamedAsOther(const QString& path, const QByteArray& format)
{
    static const QList<QByteArray> formats = QImageReader::supportedImageFormats();
    const QByteArray suffix = QFileInfo(path).suffix().toLower().toLatin1();
    return formats.contains(suffix) && familyOf(suffix) != familyOf(format);
}

} // namespace

QString ImageFile::fault(const QString& path)
{
    const SilentLog silentLog;
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    const QByteArray format = reader.format();
    const QString shownFormat = QString::fromLatin1(format.toUpper());
    if (format.isEmpty())
        return QStringLiteral("is of no format that can be shown");
    if (isNamedAsOther(path, format))
        return QStringLiteral("holds a picture of the format %1, not what its name says").arg(shownFormat);
    const QSize size = reader.size();
    if (size.isValid() && size.isEmpty())
        return QStringLiteral("is a picture without a size");
    // The whole of an SVG has been read for its size; drawing it takes long and cannot fail.
    const bool isReadable = size.isValid() && (familyOf(format) == "svg" || !reader.read().isNull());
    return isReadable ? QString() : QStringLiteral("is no readable %1").arg(shownFormat);
}
