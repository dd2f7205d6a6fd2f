// The gallery's window, compared with the recorded pictures in tests/pictures/, or tests/pictures-qt6/ with Qt 6. The
// name of each picture tells what it shows: PAGE-WxH-THEME.png. After an intended change, run
// scripts/update-pictures.sh and look at the new pictures.

#include "tests/support/GalleryFixture.h"

namespace Tests
{

namespace
{

// The share of the picture that differs visibly. Blocks of pixels are compared, so that the shapes of single letters
// do not matter.
double difference(const QImage& first, const QImage& second)
{
    if (first.size() != second.size())
        return 1;
    const auto blocks = [](const QImage& picture) {
        return picture.scaled(picture.size() / 4, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
            .convertToFormat(QImage::Format_RGB32);
    };
    const QImage a = blocks(first);
    const QImage b = blocks(second);
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QColor one(a.pixel(x, y));
            const QColor other(b.pixel(x, y));
            const int distance = std::max({std::abs(one.red() - other.red()), std::abs(one.green() - other.green()),
                                           std::abs(one.blue() - other.blue())});
            count += distance > 32 ? 1 : 0;
        }
    }
    return static_cast<double>(count) / (a.width() * a.height());
}

} // namespace

class GalleryPictureTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pageLooksAsRecorded_data()
    {
        QTest::addColumn<QString>("file");
        const QFileInfoList pictures = QDir(TEST_PICTURES).entryInfoList({"*.png"});
        QVERIFY(!pictures.isEmpty());
        for (const QFileInfo& picture : pictures)
            QTest::newRow(qPrintable(picture.completeBaseName())) << picture.filePath();
    }

    void pageLooksAsRecorded()
    {
        QFETCH(QString, file);
        const QStringList parts = QFileInfo(file).completeBaseName().split('-');
        const QString drawn = QDir("drawn-pictures").absoluteFilePath(QFileInfo(file).fileName());
        QVERIFY(QDir().mkpath("drawn-pictures"));
        const Outcome outcome = run(
            TARNIS_GALLERY,
            {RESOURCES, "--page", parts.at(0), "--size", parts.at(1), "--theme", parts.at(2), "--screenshot", drawn});
        QVERIFY2(outcome.exitStatus == 0, outcome.errors);
        const double share = difference(QImage(file), QImage(drawn));
        const QString message("%1 % of %2 differ from %3; if that is intended, run scripts/update-pictures.sh");
        QVERIFY2(share < 0.0003, qPrintable(message.arg(100 * share).arg(drawn, file)));
    }
};

} // namespace Tests

int main(int argc, char* argv[])
{
    return Tests::runGalleryTest<Tests::GalleryPictureTest>(argc, argv);
}

#include "GalleryPictureTest.moc"
