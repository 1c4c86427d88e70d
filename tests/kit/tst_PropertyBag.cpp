#include "facade/services/Language.h"
#include "kit/forms/PropertyBag.h"
#include "support/Registry.h"

#include <QFont>
#include <QPalette>
#include <QWidget>
#include <QtTest/qtest.h>

using namespace QV_DOC_CONTROLS;

/// A control with a property of every kind that a bag holds.
class Sample : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QColor Backcolor MEMBER back)
    Q_PROPERTY(bool AutoSelect MEMBER autoSelect)
    Q_PROPERTY(int LenMax MEMBER lenMax)
    Q_PROPERTY(double Max MEMBER max)
    Q_PROPERTY(QString FormatString MEMBER format)
    Q_PROPERTY(QString AfterString MEMBER after)
    Q_PROPERTY(QFont Font READ font WRITE setFont RESET resetFont)
public:
    using QWidget::QWidget;
    void resetFont() { setFont(QFont()); }
    QColor back = propertyColor(kWindowBackground);
    bool autoSelect = true;
    int lenMax = 20;
    double max = 100;
    QString format = QStringLiteral("0");
    QString after = QStringLiteral("mm");
};

namespace {

constexpr BagRow kRows[] = {
    {"BackColor", "Backcolor", kWindowBackground},
    {"AutoSelect", "AutoSelect", true},
    {"LenMax", "LenMax", 20},
    {"Max", "Max", 100.0},
    {"FormatString", "FormatString", u"0"},
    {"AfterString", "AfterString", Text{2820, u"mm"}},
    {"Font", "Font", ContainerFont{}},
};

QFont bigFont()
{
    QFont font;
    font.setPointSize(31);
    return font;
}

} // namespace

class tst_PropertyBag : public QObject {
    Q_OBJECT
private slots:
    void onlyWhatDiffersFromItsDefaultIsStored_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("kept");
        QTest::newRow("color") << QByteArray("Backcolor") << QVariant(QColor(0x12, 0x34, 0x56))
                               << QStringLiteral("BackColor") << QVariant(0x123456u);
        QTest::newRow("desktop color") << QByteArray("Backcolor") << QVariant(propertyColor({0x8000000F}))
                                       << QStringLiteral("BackColor") << QVariant(0x8000000Fu);
        QTest::newRow("flag") << QByteArray("AutoSelect") << QVariant(false) << QStringLiteral("AutoSelect")
                              << QVariant(false);
        QTest::newRow("whole") << QByteArray("LenMax") << QVariant(-7) << QStringLiteral("LenMax")
                               << QVariant(-7);
        QTest::newRow("real") << QByteArray("Max") << QVariant(0.1) << QStringLiteral("Max") << QVariant(0.1);
        QTest::newRow("text") << QByteArray("FormatString") << QVariant(QStringLiteral("ő 0.0"))
                              << QStringLiteral("FormatString") << QVariant(QStringLiteral("ő 0.0"));
        QTest::newRow("font") << QByteArray("Font") << QVariant(bigFont()) << QStringLiteral("Font")
                              << QVariant(bigFont());
    }
    void onlyWhatDiffersFromItsDefaultIsStored()
    {
        QFETCH(QByteArray, property);
        QFETCH(QVariant, value);
        QFETCH(QString, key);
        QFETCH(QVariant, kept);
        Sample control;
        QCOMPARE(bagOf(control, kRows), QVariantMap());
        QVERIFY(control.setProperty(property, value));
        QCOMPARE(bagOf(control, kRows), (QVariantMap{{key, kept}}));
        Sample other;
        readBag(other, kRows, {{key, kept}});
        QCOMPARE(other.property(property), value);
        readBag(other, kRows, {}); // and an empty bag brings the default back
        QCOMPARE(bagOf(other, kRows), QVariantMap());
    }

    void whatIsMissingOrOfAWrongTypeGetsItsDefault()
    {
        Sample control;
        const QVariantMap bad{{QStringLiteral("BackColor"), QStringLiteral("red")},
                              {QStringLiteral("LenMax"), QStringLiteral("many")},
                              {QStringLiteral("Max"), QSize(1, 2)},
                              {QStringLiteral("Of no row"), 1}};
        control.lenMax = 3, control.max = 3, control.back = Qt::red;
        readBag(control, kRows, bad);
        QCOMPARE(bagOf(control, kRows), QVariantMap());
    }

    void theDefaultOfATextIsInTheCurrentLanguage()
    {
        constexpr BagRow row[] = {{"AfterString", "AfterString", Text{3017, u"Hiba"}}};
        setLanguage(English, {});
        Sample control;
        readBag(control, row, {});
        QCOMPARE(control.after, QStringLiteral("Error"));
        setLanguage(Hungarian, {});
    }

    void theDefaultFontIsThatOfTheWidgetAround()
    {
        QWidget form;
        form.setFont(bigFont());
        Sample control(&form);
        QCOMPARE(bagOf(control, kRows), QVariantMap());
        control.setFont(QFont(QStringLiteral("DejaVu Serif"), 9));
        readBag(control, kRows, {});
        QCOMPARE(control.font().pointSize(), 31);
    }

    void everyColorNumberComesThroughTheProperty()
    {
        QPalette palette;
        palette.setColor(QPalette::Base, QColor(1, 2, 3));
        palette.setColor(QPalette::Text, QColor(4, 5, 6));
        for (const quint32 number : {0u, 0x0000ffu, 0xffffffu, 0x80000005u, 0x80000008u, 0x80000018u})
            QCOMPARE(systemColor(propertyColor({number})).number, number);
        QCOMPARE(systemColor(QColor(10, 20, 30, 128)).number,
                 0x0a141eu); // half transparent, not the desktop's
        QCOMPARE(shownColor(kWindowBackground, palette), QColor(1, 2, 3));
        QCOMPARE(shownColor(kWindowText, palette), QColor(4, 5, 6));
        QCOMPARE(shownColor({0x0000ff}, palette), QColor(0, 0, 255));
    }
};
QVDC_TEST(tst_PropertyBag)
#include "tst_PropertyBag.moc"
