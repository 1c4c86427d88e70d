#include "controls/usTxAlign.h"
#include "facade/services/Language.h"
#include "support/Registry.h"

#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QRadioButton>
#include <QTest>
#include <QVBoxLayout>

using namespace QV_DOC_CONTROLS;

class tst_usTxAlign : public QObject {
    Q_OBJECT
private:
    struct Form {
        QDialog dialog;
        usTxAlign *usTxAlign1 = new usTxAlign(&dialog);
        QStringList raised;
        Form()
        {
            (new QVBoxLayout(&dialog))->addWidget(usTxAlign1);
            QObject::connect(usTxAlign1, &usTxAlign::ChangeAlign,
                             [this](quint8 a) { raised << QString::number(a); });
            dialog.resize(200, 160);
            dialog.show();
            dialog.activateWindow();
            QApplication::setActiveWindow(&dialog);
        }
        QRadioButton *marked() const
        {
            for (auto *point : usTxAlign1->findChildren<QRadioButton *>())
                if (point->isChecked()) return point;
            return nullptr;
        }
    };

private slots:
    void keysWalkOverTheNinePoints()
    {
        Form f;
        QCOMPARE(f.usTxAlign1->Align(), quint8(24));
        f.usTxAlign1->setFocus();
        for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Down,
                                  Qt::Key_Down, Qt::Key_Left, Qt::Key_Up, Qt::Key_Up, Qt::Key_Left})
            QTest::keyClick(QApplication::focusWidget(), key);
        QCOMPARE(f.raised.join(u' '), QStringLiteral("30 26 10 14 30 6 0")); // nothing beyond the edges
        QCOMPARE(f.usTxAlign1->Align(), quint8(0));
        QCOMPARE(QApplication::focusWidget(), f.marked());
    }

    void aClickPicksTheNearestPoint_data()
    {
        QTest::addColumn<double>("x");
        QTest::addColumn<double>("y");
        QTest::addColumn<int>("align");
        const std::pair<double, int> columns[] = {{0.03, 0}, {0.5, 6}, {0.97, 2}};
        const std::pair<double, int> rows[] = {{0.03, 0}, {0.7, 24}, {0.97, 8}};
        for (const auto &[x, across] : columns)
            for (const auto &[y, down] : rows) QTest::addRow("%d", across + down) << x << y << across + down;
    }
    void aClickPicksTheNearestPoint()
    {
        QFETCH(double, x);
        QFETCH(double, y);
        QFETCH(int, align);
        Form f;
        f.usTxAlign1->setAlign(align == 0 ? 8 : 0);
        const QPoint at(int(x * f.usTxAlign1->width()), int(y * f.usTxAlign1->height()));
        QWidget *const point = f.usTxAlign1->childAt(at);
        for (int i = 0; i < 2; ++i)
            QTest::mouseClick(point, Qt::LeftButton, {}, point->mapFrom(f.usTxAlign1, at));
        QCOMPARE(f.raised, QStringList(QString::number(align))); // once
        QCOMPARE(f.usTxAlign1->propertyBag().value(QStringLiteral("Align"), 24).toInt(), align);
    }

    void anUnknownNumberStaysUntilTheUserPicks()
    {
        Form f;
        f.usTxAlign1->setAlign(4);
        QCOMPARE(f.usTxAlign1->Align(), quint8(4));
        QVERIFY(!f.marked());
        f.usTxAlign1->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        QCOMPARE(f.raised, QStringList("0"));
        f.usTxAlign1->setAlign(999);
        QCOMPARE(f.usTxAlign1->Align(), quint8(255));
        QCOMPARE(f.raised.size(), 1);
    }

    void readersHearThePoint()
    {
        Form f;
        const auto *const point = QAccessible::queryAccessibleInterface(f.marked());
        QCOMPARE(point->role(), QAccessible::RadioButton);
        QVERIFY(point->state().checked);
        QCOMPARE(point->text(QAccessible::Name), QStringLiteral("bal, alapvonal"));
        setLanguage(English, {});
        emit LanguageHub::instance().LanguageChanged();
        QCOMPARE(point->text(QAccessible::Name), QStringLiteral("left, baseline"));
        QCOMPARE(f.usTxAlign1->accessibleDescription(), QStringLiteral("left, baseline"));
        setLanguage(Hungarian, {});
    }
};
QVDC_TEST(tst_usTxAlign)
#include "tst_usTxAlign.moc"
