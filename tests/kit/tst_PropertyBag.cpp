#include "facade/services/Language.h"
#include "kit/forms/PropertyBag.h"
#include "support/Registry.h"

#include <QFont>

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
    QString format = "0", after = txt(Text{3017, u"Hiba"});
};

namespace {

constexpr BagRow kRows[] = {
    {"BackColor", "Backcolor", kWindowBackground}, {"AutoSelect", "AutoSelect", true},
    {"LenMax", "LenMax", 20},                      {"Max", "Max", 100.0},
    {"FormatString", "FormatString", u"0"},        {"AfterString", "AfterString", Text{3017, u"Hiba"}},
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
    void onlyWhatDiffersFromItsDefaultIsStored()
    {
        const std::tuple<const char *, QVariant, QString, QVariant> rows[] = {
            {"Backcolor", QColor(0x12, 0x34, 0x56), "BackColor", 0x123456u},
            {"Backcolor", propertyColor({0x8000000F}), "BackColor", 0x8000000Fu}, // one of the desktop's
            {"AutoSelect", false, "AutoSelect", false},
            {"LenMax", -7, "LenMax", -7},
            {"Max", 0.1, "Max", 0.1},
            {"FormatString", "ő 0.0", "FormatString", "ő 0.0"},
            {"Font", bigFont(), "Font", bigFont()}};
        for (const auto &[property, value, key, kept] : rows) {
            Sample control, other;
            QCOMPARE(bagOf(control, kRows), QVariantMap());
            QVERIFY2(control.setProperty(property, value), property);
            QCOMPARE(bagOf(control, kRows), (QVariantMap{{key, kept}}));
            readBag(other, kRows, {{key, kept}});
            QCOMPARE(other.property(property), value);
            readBag(other, kRows, {}); // and an empty bag brings the default back
            QCOMPARE(bagOf(other, kRows), QVariantMap());
        }
    }
    void whatIsMissingOrOfAWrongTypeGetsItsDefault()
    {
        Sample control;
        control.lenMax = 3, control.max = 3, control.back = Qt::red;
        readBag(control, kRows,
                {{"BackColor", "red"}, {"LenMax", "many"}, {"Max", QSize(1, 2)}, {"Of no row", 1}});
        QCOMPARE(bagOf(control, kRows), QVariantMap());
        setLanguage(English, {});
        readBag(control, kRows, {});
        QCOMPARE(control.after, "Error");
        setLanguage(Hungarian, {});
    }
    void theDefaultFontIsThatOfTheWidgetAround()
    {
        QWidget form;
        form.setFont(bigFont());
        Sample control(&form);
        QCOMPARE(bagOf(control, kRows), QVariantMap());
        control.setFont(QFont("DejaVu Serif", 9));
        readBag(control, kRows, {});
        QCOMPARE(control.font().pointSize(), 31);
    }
    void everyColorNumberComesThroughTheProperty()
    {
        QPalette palette;
        palette.setColor(QPalette::Base, QColor(1, 2, 3));
        for (const quint32 number : {0u, 0x0000ffu, 0xffffffu, 0x80000005u, 0x80000008u, 0x80000018u})
            QCOMPARE(systemColor(propertyColor({number})).number, number);
        QCOMPARE(systemColor(QColor(10, 20, 30, 128)).number,
                 0x0a141eu); // half transparent, not the desktop's
        QCOMPARE(shownColor(kWindowBackground, palette), QColor(1, 2, 3));
        QCOMPARE(shownColor({0x0000ff}, palette), QColor(0, 0, 255));
    }
};
QVDC_TEST(tst_PropertyBag)
#include "tst_PropertyBag.moc"
