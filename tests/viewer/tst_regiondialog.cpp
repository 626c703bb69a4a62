#include "regiondialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QtTest>

#include <memory>

/// Numbers typed for a region in an image of 65 x 48 pixels.
class TestRegionDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void start_isTheRegion();
    void typedNumbers_areTheRegion();
    void limits_data();
    void limits();
    void wholeImage_isTaken();
    void beyondAnEdge_cannotBeAccepted_data();
    void beyondAnEdge_cannotBeAccepted();
    void escape_rejects();
    void labels_leadToTheirFields();

private:
    void type(const char* field, const QString& number) const;
    QSpinBox* box(const char* field) const { return m_dialog->findChild<QSpinBox*>(field); }
    QPushButton* ok() const
    {
        return m_dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    }
    QString problem() const { return m_dialog->findChild<QLabel*>("regionProblem")->text(); }

    std::unique_ptr<RegionDialog> m_dialog;
};

void TestRegionDialog::init()
{
    m_dialog = std::make_unique<RegionDialog>("ROI 3", QRect(3, 4, 5, 6), QSize(65, 48));
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
}

void TestRegionDialog::type(const char* field, const QString& number) const
{
    box(field)->setFocus();
    box(field)->selectAll();
    QTest::keyClicks(box(field), number);
}

void TestRegionDialog::start_isTheRegion()
{
    QCOMPARE(m_dialog->windowTitle(), QString("ROI 3"));
    QCOMPARE(m_dialog->region(), QRect(3, 4, 5, 6));
    QVERIFY(ok()->isEnabled() && problem().isEmpty());
    QVERIFY(m_dialog->findChild<QLabel*>("regionNote")->text().contains("top left"));
}

void TestRegionDialog::typedNumbers_areTheRegion()
{
    type("spinRegionX", "10");
    type("spinRegionY", "20");
    type("spinRegionWidth", "30");
    type("spinRegionHeight", "8");
    QCOMPARE(m_dialog->region(), QRect(10, 20, 30, 8));
    QTest::keyClick(box("spinRegionHeight"), Qt::Key_Return);
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    QCOMPARE(m_dialog->region(), QRect(10, 20, 30, 8));
}

void TestRegionDialog::limits_data()
{
    QTest::addColumn<QByteArray>("field");
    QTest::addColumn<int>("least");
    QTest::addColumn<int>("most");
    QTest::newRow("x") << QByteArray("spinRegionX") << 0 << 64;
    QTest::newRow("y") << QByteArray("spinRegionY") << 0 << 47;
    QTest::newRow("width") << QByteArray("spinRegionWidth") << 1 << 65;
    QTest::newRow("height") << QByteArray("spinRegionHeight") << 1 << 48;
}

void TestRegionDialog::limits()
{
    QFETCH(QByteArray, field);
    QFETCH(int, least);
    QFETCH(int, most);
    for (const char* typed : { "99999999999", "-1", "x", "1e3", "99" }) {
        type(field, typed);
        box(field)->interpretText();
        QVERIFY2(box(field)->value() >= least && box(field)->value() <= most, typed);
    }
    for (int i = 0; i < 70; ++i) {
        QTest::keyClick(box(field), Qt::Key_Up);
    }
    QCOMPARE(box(field)->value(), most);
    for (int i = 0; i < 70; ++i) {
        QTest::keyClick(box(field), Qt::Key_Down);
    }
    QCOMPARE(box(field)->value(), least);
}

void TestRegionDialog::wholeImage_isTaken()
{
    type("spinRegionX", "0");
    type("spinRegionY", "0");
    type("spinRegionWidth", "65");
    type("spinRegionHeight", "48");
    QVERIFY(ok()->isEnabled());
    QTest::mouseClick(ok(), Qt::LeftButton);
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    QCOMPARE(m_dialog->region(), QRect(0, 0, 65, 48));
}

void TestRegionDialog::beyondAnEdge_cannotBeAccepted_data()
{
    QTest::addColumn<QByteArray>("field");
    QTest::addColumn<QString>("last"); // that lies inside
    QTest::addColumn<QString>("first"); // that does not
    QTest::addColumn<QString>("problem");
    // 5 x 6 pixels
    QTest::newRow("x") << QByteArray("spinRegionX") << "60"
                       << "61"
                       << "X + width is 66, the image is 65 pixels wide.";
    QTest::newRow("y") << QByteArray("spinRegionY") << "42"
                       << "43"
                       << "Y + height is 49, the image is 48 pixels high.";
    // from 3, 4 on
    QTest::newRow("width") << QByteArray("spinRegionWidth") << "62"
                           << "63"
                           << "X + width is 66, the image is 65 pixels wide.";
    QTest::newRow("height") << QByteArray("spinRegionHeight") << "44"
                            << "45"
                            << "Y + height is 49, the image is 48 pixels high.";
}

void TestRegionDialog::beyondAnEdge_cannotBeAccepted()
{
    QFETCH(QByteArray, field);
    QFETCH(QString, last);
    QFETCH(QString, first);
    type(field, last);
    QVERIFY(ok()->isEnabled() && problem().isEmpty());
    const QSize size = m_dialog->size();
    type(field, first);
    QVERIFY(!ok()->isEnabled());
    QTEST(problem(), "problem");
    QTest::keyClick(box(field), Qt::Key_Return);
    QTest::mouseClick(ok(), Qt::LeftButton);
    QVERIFY(m_dialog->isVisible());
    QCoreApplication::processEvents();
    QCOMPARE(m_dialog->size(), size); // nothing jumps under the pointer
    type(field, last);
    QVERIFY(ok()->isEnabled() && problem().isEmpty());
}

void TestRegionDialog::escape_rejects()
{
    type("spinRegionX", "10");
    QTest::keyClick(box("spinRegionX"), Qt::Key_Escape);
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), int(QDialog::Rejected));
}

void TestRegionDialog::labels_leadToTheirFields()
{
    QApplication::setActiveWindow(m_dialog.get());
    QVERIFY(box("spinRegionX")->hasFocus());
    const QVector<QPair<Qt::Key, const char*>> keys { { Qt::Key_H, "spinRegionHeight" },
        { Qt::Key_Y, "spinRegionY" }, { Qt::Key_W, "spinRegionWidth" },
        { Qt::Key_X, "spinRegionX" } };
    for (const auto& [key, field] : keys) {
        QTest::keyClick(m_dialog.get(), key, Qt::AltModifier);
        QVERIFY2(box(field)->hasFocus(), field);
    }
}

QTEST_MAIN(TestRegionDialog)
#include "tst_regiondialog.moc"
