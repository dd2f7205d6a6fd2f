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
    const QSize size = reader.size(); // for which the whole of an SVG is read
    const QByteArray format = reader.format();
    if (format.isEmpty())
        return reader.errorString();
    if (isNamedAsOther(path, format))
        return QStringLiteral("its content is %1").arg(QString::fromLatin1(format.toUpper()));
    if (!size.isValid())
        return QStringLiteral("not a whole %1").arg(QString::fromLatin1(format.toUpper()));
    if (size.isEmpty())
        return QStringLiteral("without a size");
    const bool isDrawable = familyOf(format) == "svg" || !reader.read().isNull();
    return isDrawable ? QString() : reader.errorString();
}
