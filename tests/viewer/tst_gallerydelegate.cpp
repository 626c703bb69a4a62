#include "gallerydelegate.h"

#include "appearance.h"
#include "gallerymodel.h"

#include <QPainter>
#include <QTemporaryDir>
#include <QtTest>

/// The tile as it is painted, at 96 dots per inch: 186 x 172, the picture's room from (13, 13).
class TestGalleryDelegate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void size_isThatOfThePictureAndTheName();
    void picture_standsInTheMiddle();
    void largePicture_isShrunk();
    void waiting_isAnEmptyFrame();
    void refused_isCrossedOut();
    void tooLarge_isSaid();
    void current_standsOut();
    void name_takesTwoLinesAtMost();
    void name_usesTheSecondLineForItsEnd();

private:
    QRect inkOfName(const QString& name);
    QImage painted(QStyle::State state = QStyle::State_Enabled) const;
    int coloured(const QImage& tile, const QColor& color) const;

    QTemporaryDir m_folder;
    std::unique_ptr<GalleryModel> m_model;
    std::unique_ptr<GalleryDelegate> m_delegate;
};

using LoadProblem = CVKIntensityWidget::LoadProblem;

namespace {

QImage redPicture(int width, int height)
{
    QImage picture(width, height, QImage::Format_RGB32);
    picture.fill(Qt::red);
    return picture;
}

} // namespace

void TestGalleryDelegate::initTestCase()
{
    initViewerResources();
    QFile file(m_folder.filePath("a.png"));
    QVERIFY(file.open(QIODevice::WriteOnly));
}

void TestGalleryDelegate::init()
{
    m_delegate = std::make_unique<GalleryDelegate>();
    m_model = std::make_unique<GalleryModel>();
    m_model->setFiles({ QFileInfo(m_folder.filePath("a.png")) });
}

QImage TestGalleryDelegate::painted(QStyle::State state) const
{
    QImage tile(GalleryDelegate::tileSize(), QImage::Format_RGB32);
    tile.fill(Qt::black);
    QStyleOptionViewItem option;
    option.rect = tile.rect();
    option.state = state;
    QPainter painter(&tile);
    m_delegate->paint(&painter, option, m_model->index(0));
    return tile;
}

int TestGalleryDelegate::coloured(const QImage& tile, const QColor& color) const
{
    int count = 0;
    for (int y = 0; y < tile.height(); ++y) {
        for (int x = 0; x < tile.width(); ++x) {
            count += tile.pixelColor(x, y) == color;
        }
    }
    return count;
}

void TestGalleryDelegate::size_isThatOfThePictureAndTheName()
{
    QCOMPARE(GalleryDelegate::pictureSize(), QSize(160, 120));
    QCOMPARE(GalleryDelegate::tileSize(), QSize(186, 182)); // 160 + 26, 120 + 26 + 36
    QCOMPARE(m_delegate->sizeHint(QStyleOptionViewItem(), m_model->index(0)), QSize(186, 182));
}

void TestGalleryDelegate::picture_standsInTheMiddle()
{
    QVERIFY(m_model->setPicture(0, redPicture(100, 60), LoadProblem::None));
    const QImage tile = painted();
    QCOMPARE(coloured(tile, Qt::red), 100 * 60);
    QCOMPARE(tile.pixelColor(43, 43), QColor(Qt::red)); // 13 + 30, 13 + 30
    QCOMPARE(tile.pixelColor(142, 102), QColor(Qt::red));
}

void TestGalleryDelegate::largePicture_isShrunk()
{
    QVERIFY(m_model->setPicture(0, redPicture(640, 320), LoadProblem::None));
    const QImage tile = painted();
    QCOMPARE(coloured(tile, Qt::red), 160 * 80);
    QCOMPARE(tile.pixelColor(13, 33), QColor(Qt::red));
}

void TestGalleryDelegate::waiting_isAnEmptyFrame()
{
    const QImage tile = painted();
    const QRect room(13, 13, 160, 120);
    const QColor ground = tile.pixelColor(room.center());
    QCOMPARE(coloured(tile.copy(room), ground), 160 * 120);
    QVERIFY(ground != QColor(Qt::black));
}

void TestGalleryDelegate::refused_isCrossedOut()
{
    const QImage waiting = painted();
    QVERIFY(m_model->setPicture(0, QImage(), LoadProblem::NotReadable));
    const QImage refused = painted();
    const QRect middle(61, 41, 64, 64);
    QVERIFY(refused.copy(middle) != waiting.copy(middle));
    QImage elsewhere = refused;
    QPainter(&elsewhere).drawImage(middle, waiting, middle);
    QCOMPARE(elsewhere, waiting); // nothing outside is touched
}

void TestGalleryDelegate::tooLarge_isSaid()
{
    const QImage waiting = painted();
    QVERIFY(m_model->setPicture(0, QImage(), LoadProblem::OverPixelLimit));
    const QImage said = painted();
    const QRect room(13, 13, 160, 120);
    QVERIFY(said.copy(room) != waiting.copy(room));
    QVERIFY(said.pixelColor(61 + 32, 20) == waiting.pixelColor(61 + 32, 20)); // a line of text
    QImage elsewhere = said;
    QPainter(&elsewhere).drawImage(room, waiting, room);
    QCOMPARE(elsewhere, waiting);
    QVERIFY(m_model->setPicture(0, QImage(), LoadProblem::NotReadable));
    QVERIFY(painted() != said);
}

void TestGalleryDelegate::current_standsOut()
{
    const QImage plain = painted();
    const QImage current = painted(QStyle::State_Enabled | QStyle::State_Selected);
    const QImage hovered = painted(QStyle::State_Enabled | QStyle::State_MouseOver);
    const QPoint ground(20, 20);
    QVERIFY(plain.pixelColor(ground) != current.pixelColor(ground));
    QVERIFY(plain.pixelColor(ground) != hovered.pixelColor(ground));
    QVERIFY(hovered.pixelColor(ground) != current.pixelColor(ground));
}

void TestGalleryDelegate::name_takesTwoLinesAtMost()
{
    const QString path = m_folder.filePath(QString(120, 'w') + "\n" + QString(60, 'w') + ".png");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    const QRect name(13, 133, 160, 44);
    const QImage before = painted();
    m_model->setFiles({ QFileInfo(path) });
    const QImage tile = painted();
    QVERIFY(tile.copy(name) != before.copy(name));
    QImage elsewhere = tile;
    QPainter(&elsewhere).drawImage(name, before, name);
    QCOMPARE(elsewhere, before); // the long name reaches nowhere else
}

/// Where the name is painted, in pixels of the tile.
QRect TestGalleryDelegate::inkOfName(const QString& name)
{
    m_model->setFiles({});
    QFile file(m_folder.filePath(name));
    [&file] { QVERIFY(file.open(QIODevice::WriteOnly)); }();
    m_model->setFiles({ QFileInfo(file.fileName()) });
    const QImage tile = painted();
    const QColor ground = tile.pixelColor(20, 20);
    QRect ink;
    for (int y = 133; y < 175; ++y) {
        for (int x = 13; x < 173; ++x) {
            ink |= tile.pixelColor(x, y) == ground ? QRect() : QRect(x, y, 1, 1);
        }
    }
    return ink;
}

void TestGalleryDelegate::name_usesTheSecondLineForItsEnd()
{
    const QRect one = inkOfName("frame.raw");
    const QRect two = inkOfName("calibration lamp exposure 20 ms 12.raw");
    QVERIFY(one.isValid() && two.isValid());
    QVERIFY2(one.height() <= 20 && two.height() > 20 && two.height() <= 44,
        qPrintable(QString("%1, %2").arg(one.height()).arg(two.height())));
    QVERIFY(qAbs(one.center().y() - two.center().y()) <= 3); // both in the middle
    const QRect cut = inkOfName(QString(120, 'w') + ".raw");
    QVERIFY(cut.height() > 20 && cut.height() <= two.height() && cut.width() > 140);
}

QTEST_MAIN(TestGalleryDelegate)
#include "tst_gallerydelegate.moc"
