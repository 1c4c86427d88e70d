#include "controls/usTxAlign.h"
#include "support/Registry.h"

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
            const auto note = [this](quint8 align) { raised << QString::number(align); };
            QObject::connect(usTxAlign1, &usTxAlign::ChangeAlign, note);
            dialog.resize(200, 160);
            dialog.show();
            QApplication::setActiveWindow(&dialog);
            usTxAlign1->setFocus();
        }
    };

private slots:
    void keysWalkOverTheNinePoints()
    {
        Form f;
        for (const char way : QByteArray("lrrrddluul")) {
            const Qt::Key key = way == 'l' ? Qt::Key_Left : way == 'r' ? Qt::Key_Right
                              : way == 'u' ? Qt::Key_Up : Qt::Key_Down;
            QTest::keyClick(QApplication::focusWidget(), key);
        }
        QCOMPARE(f.raised.join(u' '), "30 26 10 14 30 6 0"); // nothing beyond the edges
        QCOMPARE(f.usTxAlign1->Align(), quint8(0));
    }

    void aClickPicksTheNearestPoint()
    {
        Form f;
        f.usTxAlign1->setAlign(4);              // none of them
        const std::pair<double, int> columns[] = {{0.03, 0}, {0.5, 6}, {0.97, 2}};
        const std::pair<double, int> rows[] = {{0.03, 0}, {0.7, 24}, {0.97, 8}};
        for (const auto &[x, across] : columns)
            for (const auto &[y, down] : rows) {
                const QPoint at(int(x * f.usTxAlign1->width()), int(y * f.usTxAlign1->height()));
                QWidget *const point = f.usTxAlign1->childAt(at);
                for (int i = 0; i < 2; ++i)
                    QTest::mouseClick(point, Qt::LeftButton, {}, point->mapFrom(f.usTxAlign1, at));
                QCOMPARE(f.raised, QStringList(QString::number(across + down))); // once
                QCOMPARE(f.usTxAlign1->Align(), quint8(across + down));
                f.raised.clear();
            }
    }

    void anUnknownNumberStaysUntilTheUserPicks()
    {
        Form f;
        const auto *const point = QAccessible::queryAccessibleInterface(QApplication::focusWidget());
        QVERIFY(point->role() == QAccessible::RadioButton && point->state().checked);
        QCOMPARE(point->text(QAccessible::Name), "bal, alapvonal");
        f.usTxAlign1->setAlign(999);
        QVERIFY(f.usTxAlign1->Align() == 255 && !point->state().checked);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        QCOMPARE(f.raised, QStringList("24"));
    }
};
QVDC_TEST(tst_usTxAlign)
#include "tst_usTxAlign.moc"
