#include "ResourceCheck/rules/Rule.h"
#include "ResourceCheck/svg/SvgReader.h"
#include "tests/support/TestProcess.h"

#include <QGuiApplication>
#include <QImageReader>
#include <QtTest>

namespace Tests
{

using namespace ResourceCheck;

namespace
{

void printMessage(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& message)
{
    std::printf("warning: %s\n", qPrintable(QString(message).remove('\n')));
}

// Draws each file with Qt. Prints its messages and one line for the picture.
void draw(const QStringList& files)
{
    qInstallMessageHandler(printMessage);
    for (const QString& file : files) {
        const QImage image = QImageReader(file).read();
        const QByteArray hash =
            QCryptographicHash::hash(QByteArray::fromRawData(reinterpret_cast<const char*>(image.constBits()),
                                                             static_cast<int>(image.sizeInBytes())),
                                     QCryptographicHash::Md5);
        if (image.isNull())
            std::printf("nothing\n");
        else
            std::printf("picture %d x %d %s\n", image.width(), image.height(), hash.toHex().constData());
    }
}

// The lines of draw() in another process, which is ended after 10 s.
QStringList drawn(const QStringList& files)
{
    const QStringList command{"-k", "1", "10", QCoreApplication::applicationFilePath(), "--draw"};
    return QString::fromUtf8(run("timeout", command + files).output).split('\n', Qt::SkipEmptyParts);
}

const QByteArrayList pieces{"<g id='a'>",
                            "</g>",
                            "<g>",
                            "</g>",
                            "<defs>",
                            "</defs>",
                            "<text>a",
                            "</text>",
                            "<rect id='b' width='9' height='9'>",
                            "</rect>",
                            "<rect width='9' height='9'/>",
                            "<use xlink:href='#a'/>",
                            "<use href='#b'/>",
                            "<use xlink:href='#c'/>",
                            "<use/>",
                            "<linearGradient id='c' xlink:href='#d'/>",
                            "<radialGradient id='d' xlink:href='#e'>",
                            "</radialGradient>",
                            "<stop offset='1'/>",
                            "<solidColor id='e' solid-color='red'/>",
                            "<solidColor/>",
                            "<font/>",
                            "<font id='f'>",
                            "</font>",
                            "<font-face font-family='x'/>",
                            "<glyph/>",
                            "<font-face-src/>",
                            "<tspan>b</tspan>",
                            "<tbreak/>",
                            "<textArea width='9' height='9'>",
                            "</textArea>",
                            "<circle r='9' fill='url(#c)'/>",
                            "<g stroke='url(#d)'>",
                            "<ellipse rx='3' ry='4' style='fill: url( #e )'/>",
                            "<line x2='9' stroke='url(&quot;#e&quot;)'/>",
                            "<image/>",
                            "<image width='9' height='9' xlink:href='data:,x'/>",
                            "<g xml:space='x'/>",
                            "<symbol id='s'>",
                            "</symbol>",
                            "<clipPath>",
                            "</clipPath>",
                            "<title>t</title>",
                            "<a>",
                            "</a>",
                            "<switch>",
                            "</switch>",
                            "<video/>"};
const QByteArrayList pathParts{"M", "m", "L", "l", "a", "A",   "c",  "z",   "Z",   "H", "v", "q", "T",
                               "s", " ", ",", "0", "1", "1.5", "-3", "+.5", "1e2", "e", ".", "X"};
QByteArray randomPicture(QRandomGenerator& random)
{
    QByteArray picture = "<svg xmlns='s' xmlns:xlink='x' width='24' height='24'>\n";
    QByteArrayList open;
    for (int count = random.bounded(1, 8); count > 0; --count) {
        QByteArray piece = pieces.at(random.bounded(static_cast<int>(pieces.size())));
        if (random.bounded(8) == 0) {
            piece = "<path d='M1 1";
            for (int parts = random.bounded(12); parts > 0; --parts)
                piece += pathParts.at(random.bounded(static_cast<int>(pathParts.size())));
            piece += "'/>";
        }
        if (piece.startsWith("</") && (open.isEmpty() || random.bounded(50) > 0))
            piece = open.isEmpty() ? QByteArray() : open.takeLast();
        else if (!piece.contains("/>") && !piece.contains("</"))
            open.append("</" + piece.mid(1, piece.indexOf(piece.contains(' ') ? ' ' : '>') - 1) + '>');
        picture += piece + '\n';
    }
    while (!open.isEmpty())
        picture += open.takeLast();
    return picture + "</svg>";
}

QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/// Compares the findings in SVG files with what Qt draws and logs.
class SvgTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void qtDoesNotDrawFaultyPictures();
    void everyWarningOfQtHasAFinding();
};

// The picture of a fault is not that of the near miss, or Qt warns, or does not finish. The near miss draws what the
// author meant.
void SvgTest::qtDoesNotDrawFaultyPictures()
{
    int count = 0;
    for (const Rule& rule : allRules()) {
        const QString directory = "tests/rules/" + rule.name;
        if (!rule.name.startsWith("svg-"))
            continue;
        const QStringList sound = drawn({directory + "/sound/icons/day/home.svg"});
        QVERIFY2(sound.size() == 1 && sound.first().startsWith("picture"), qPrintable(sound.join('\n')));
        const QStringList fault = drawn({directory + "/fault/icons/day/home.svg"});
        QVERIFY2(fault != sound, qPrintable(rule.name));
        ++count;
    }
    QVERIFY(count > 0);
}

// For pictures that are made at random of pieces, some of which are faulty.
void SvgTest::everyWarningOfQtHasAFinding()
{
    const QTemporaryDir copy;
    QRandomGenerator random(1);
    QStringList files;
    for (int number = 0; number < 1000; ++number)
        files.append(writeFile(copy.filePath(QString("%1.svg").arg(number, 4, 10, QChar('0'))), randomPicture(random)));
    const QStringList lines = drawn(files);
    QCOMPARE(lines.filter(QRegularExpression("^(picture|nothing)")).size(), files.size());
    int index = 0;
    int warnings = 0;
    int faults = 0;
    for (const QString& line : lines) {
        const QVector<SvgFault> found = SvgReader(files.at(index), readFile(files.at(index))).faults();
        const bool isResult = !line.startsWith("warning");
        index += isResult ? 1 : 0;
        warnings += isResult ? 0 : 1;
        faults += isResult && !found.isEmpty() ? 1 : 0;
        const bool isBad = !line.startsWith("picture");
        QVERIFY2(!isBad || !found.isEmpty(), qPrintable(line + readFile(files.at(index - (isResult ? 1 : 0)))));
    }
    QVERIFY(warnings > 500);
    QVERIFY(faults < files.size());
}

} // namespace Tests

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "minimal:enable_fonts");
    const QGuiApplication application(argc, argv);
    if (argc > 1 && QByteArray(argv[1]) == "--draw") {
        Tests::draw(QGuiApplication::arguments().mid(2));
        return 0;
    }
    Tests::SvgTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "SvgTest.moc"
