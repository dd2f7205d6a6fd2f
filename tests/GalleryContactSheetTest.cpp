// The one picture of a front end in every display size, icon context and language.

#include "Gallery/compare/ContactSheet.h"
#include "tests/support/GalleryFixture.h"

namespace Tests
{

namespace
{

QRgb colorOf(const QString& name)
{
    return static_cast<QRgb>(qHash(name, 0)) | 0xFF000000;
}

} // namespace

class GalleryContactSheetTest : public QObject
{
    Q_OBJECT

    std::optional<GalleryFixture> fixture;

private Q_SLOTS:
    void init() { fixture.emplace(); }

    void sheetShowsEveryDisplayContextAndLanguageAtItsSize()
    {
        writeFile(fixture->path("own.qml"),
                  "import QtQuick 2.15\nimport Tarnis 1.0\nRectangle { property string context; color: '#' + "
                  "Qt.md5(Ui.dimensions.uiElementDimensions['Screen/width'] + context + "
                  "Ui.texts.translatedTexts['text://Room/Stairs']).slice(0, 6) }");
        fixture->copyResources();
        for (const char* const name : {"dimensions/1280x800.ini", "texts/fr.json", "texts/ja.json"})
            QVERIFY(QFile::remove(fixture->path(name))); // twelve pictures remain
        const Outcome outcome =
            run(TARNIS_GALLERY,
                {fixture->path(), "--qml", fixture->path("own.qml"), "--contact-sheet", fixture->path("sheet.png")});
        QVERIFY2(outcome.exitStatus == 0, outcome.errors);
        const QImage sheet(fixture->path("sheet.png"));
        for (const QSize size : {QSize(800, 480), QSize(1024, 600)}) {
            for (const QString context : {"defaultContext", "nightMode"}) {
                for (const QString stairs : {"Stairs", "Treppe", "Stiege"}) {
                    const QByteArray seed = (QString::number(size.width()) + context + stairs).toUtf8();
                    const QByteArray hash = QCryptographicHash::hash(seed, QCryptographicHash::Md5).toHex();
                    QCOMPARE(countPixels(sheet, hash.left(6).toUInt(nullptr, 16)), size.width() * size.height());
                }
            }
        }
    }

    void largeSheetIsScaledDown()
    {
        QStringList languages;
        for (int number = 0; number < 40; ++number)
            languages.append("l" + QString::number(number));
        const QStringList displays{"1920x1080", "480x320"};
        const QStringList contexts{"day", "night", "winter"};
        Gallery::ContactSheet sheet("title", displays, contexts, languages);
        const QImage picture = sheet.draw([](const QString& display, const QString& context, const QString& language) {
            QImage content(display == "480x320" ? QSize(480, 320) : QSize(1920, 1080), QImage::Format_RGB32);
            content.fill(colorOf(display + context + language));
            return content;
        });
        QVERIFY(picture.height() <= 8000 && picture.height() > 7900);
        QVERIFY(picture.width() <= 8000);
        for (int display = 0; display < displays.size(); ++display) {
            for (int context = 0; context < contexts.size(); ++context) {
                for (int language = 0; language < languages.size(); ++language) {
                    const QString names = displays.at(display) + contexts.at(context) + languages.at(language);
                    const QRect cell = sheet.cell(display, context, language);
                    QCOMPARE(picture.pixel(cell.center()), colorOf(names));
                    QCOMPARE(picture.pixel(cell.bottomRight()), colorOf(names));
                }
            }
        }
    }
};

} // namespace Tests

int main(int argc, char* argv[])
{
    return Tests::runGalleryTest<Tests::GalleryContactSheetTest>(argc, argv);
}

#include "GalleryContactSheetTest.moc"
