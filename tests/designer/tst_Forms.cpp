#include "controls/DesignMode.h"
#include "controls/ZOL3_LayGroup.h"
#include "controls/ZOL3_LayInfo.h"
#include "controls/usInputBox.h"
#include "controls/usLays.h"
#include "facade/services/Language.h"
#include "support/OtherValues.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"

#include "ui_AttributeForm.h"

#include <QtDesigner/QDesignerComponents>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerIntegration>
#include <QtDesigner/QDesignerPropertyEditorInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>
#include <QtDesigner/QFormBuilder>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiTools/QUiLoader>

#include <QBuffer>
#include <QDomDocument>
#include <QPluginLoader>

#include <random>

using namespace tests;

namespace {

struct Control {
    QString name;
    std::vector<std::pair<QByteArray, QVariant>> values; ///< design-time properties, outside their defaults
};
const char *const kControls[] = {"usInputBox", "ZOL3_LayGroup", "usLays",   "ZOL3_LayInfo",
                                 "usSiInfo",   "ZOL3_SiInfo",   "usTxAlign"};
const QByteArray kClosed[] = {"sLays", "sLayGroup"}; ///< that the designer shows and does not set

QString className(const Control &control)
{
    return "QV_DOC_CONTROLS::" + control.name;
}

QList<QDesignerCustomWidgetInterface *> offered()
{
    static QPluginLoader loader;
    const QDir folder(QStringLiteral(PLUGINS "/designer"));
    loader.setFileName(folder.filePath(folder.entryList(QDir::Files).value(0)));
    auto *const plugin = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(loader.instance());
    return plugin ? plugin->customWidgets() : QList<QDesignerCustomWidgetInterface *>();
}

std::vector<Control> controls()
{
    std::vector<Control> all;
    for (QDesignerCustomWidgetInterface *offer : offered()) {
        QWidget form;
        all.push_back({offer->name().section("::", 1), otherValues(*offer->createWidget(&form))});
        std::erase_if(all.back().values, [](const auto &v) { return std::ranges::count(kClosed, v.first); });
    }
    return all;
}

std::unique_ptr<QWidget> loaded(const QByteArray &form, bool byUiLoader)
{
    QBuffer buffer;
    buffer.setData(form);
    buffer.open(QIODevice::ReadOnly);
    if (byUiLoader) {
        QUiLoader loader;
        loader.addPluginPath(QStringLiteral(PLUGINS "/designer"));
        return std::unique_ptr<QWidget>(loader.load(&buffer));
    }
    QFormBuilder builder;
    builder.setPluginPath({QStringLiteral(PLUGINS "/designer")});
    return std::unique_ptr<QWidget>(builder.load(&buffer));
}

/// The form with the properties of its control in another order.
QByteArray shuffled(const QByteArray &form, std::mt19937 &random)
{
    QDomDocument dom;
    dom.setContent(form);
    QDomElement widget = dom.documentElement().firstChildElement("widget");
    widget = widget.firstChildElement("widget");
    std::vector<QDomElement> properties;
    for (auto p = widget.firstChildElement("property"); !p.isNull(); p = p.nextSiblingElement("property"))
        properties.push_back(p);
    std::ranges::shuffle(properties, random);
    for (const QDomElement &p : properties) widget.appendChild(p);
    return dom.toByteArray();
}

QString said(const QVariant &value)
{
    return value.typeId() == QMetaType::QFont ? value.value<QFont>().toString() : value.toString();
}

/// On a form of its own, every value as it was set, once shown.
void holdsValues(QWidget *form, const Control &control)
{
    QVERIFY(form);
    ScriptedPrompts silent;
    const QWidget *const found = form->findChild<QWidget *>("control");
    QVERIFY(found);
    QCOMPARE(className(control), found->metaObject()->className());
    form->show();
    for (const auto &[name, value] : control.values)
        same(qPrintable(control.name + u'.' + name), said(found->property(name)), said(value));
}

/// A value as forms write it.
QString element(const QVariant &value)
{
    const auto simple = [&](const char *name) {
        return QString("<%1>%2</%1>").arg(name, value.toString().toHtmlEscaped());
    };
    switch (value.typeId()) {
    case QMetaType::Bool: return simple("bool");
    case QMetaType::Int: return simple("number");
    case QMetaType::Double: return simple("double");
    case QMetaType::QColor: {
        const auto c = value.value<QColor>();
        return QString("<color alpha='%1'><red>%2</red><green>%3</green><blue>%4</blue></color>")
            .arg(c.alpha()).arg(c.red()).arg(c.green()).arg(c.blue());
    }
    case QMetaType::QFont: {
        const auto font = value.value<QFont>();
        return QString("<font><family>%1</family><pointsize>%2</pointsize></font>")
            .arg(font.family()).arg(font.pointSize());
    }
    default: return simple("string");
    }
}

/// A form with that control and its values, as a designer would type it.
QString formWith(const Control &control)
{
    QString properties;
    for (const auto &[name, value] : control.values)
        properties += QString("<property name='%1'>%2</property>").arg(name, element(value));
    return QString("<ui version='4.0'><class>Form</class><widget class='QWidget' name='Form'>"
                   "<widget name='control' class='%1'>%2</widget></widget></ui>")
        .arg(className(control), properties);
}

/// The designer's engine, without its windows. One for the process: a second one may end it.
struct Engine {
    std::unique_ptr<QDesignerFormEditorInterface> core;
    QWidget desk;                               ///< goes before the core

    Engine()
    {
        QDesignerComponents::initializeResources();
        expectWarning("QOpenGLWidget is not supported on this platform");
        core.reset(QDesignerComponents::createFormEditor(nullptr));
        core->setPropertyEditor(QDesignerComponents::createPropertyEditor(core.get(), &desk));
        new QDesignerIntegration(core.get(), core.get());
        QDesignerComponents::initializePlugins(core.get());
    }
};

/// One form open in it.
struct Designer {
    QDesignerFormWindowInterface *const form;
    QWidget *control = nullptr;

    Designer(Engine &engine, const Control &c)
        : form(engine.core->formWindowManager()->createFormWindow(&engine.desk))
    {
        if (form->setContents(formWith(c))) control = form->findChild<QWidget *>("control");
    }
    ~Designer() { delete form; }
    QByteArray saved() const { return form->contents().toUtf8(); }
};

} // namespace

class tst_Forms : public QObject {
    Q_OBJECT
private:
    std::unique_ptr<Engine> m_engine;
private slots:
    void initTestCase()
    {
        QCoreApplication::addLibraryPath(QStringLiteral(PLUGINS));
        m_engine = std::make_unique<Engine>();
    }
    void cleanupTestCase() { m_engine.reset(); }

    void thePluginOffersEveryControl()
    {
        const auto all = offered();
        QCOMPARE(all.size(), qsizetype(std::size(kControls)));
        QStringList tips;
        for (size_t i = 0; i < std::size(kControls); ++i) {
            const auto &offer = *all[qsizetype(i)];
            QCOMPARE(offer.name(), "QV_DOC_CONTROLS::" + QString(kControls[i]));
            QVERIFY(!offer.icon().pixmap(22, 22).isNull() && offer.domXml().contains(offer.name()));
            for (const int language : {Hungarian, English, Romanian, Vietnamese}) {
                setLanguage(language, {});
                tips << offer.toolTip();
            }
            setLanguage(Hungarian, {});
            QWidget form;
            QWidget *const preview = all[qsizetype(i)]->createWidget(&form);
            preview->resize(preview->sizeHint());
            const QImage picture = preview->grab().toImage();
            QImage blank(picture.size(), picture.format());
            blank.fill(picture.pixel(0, 0));
            QVERIFY2(picture != blank, kControls[i]);
        }
        QVERIFY(!tips.contains(QString()));
        QCOMPARE(tips.removeDuplicates(), 0);
    }

    void aSavedFormLoadsBackInEveryOrder()
    {
        std::mt19937 random(7);
        for (const Control &c : controls()) {
            const QByteArray form = Designer(*m_engine, c).saved();
            for (int turn = 0; turn < 12; ++turn)
                holdsValues(loaded(shuffled(form, random), turn % 2).get(), c);
        }
    }

    void theDesignerShowsAndKeepsEveryProperty()
    {
        for (const Control &c : controls()) {
            const Designer designer(*m_engine, c);
            QWidget *const made = designer.control;
            QVERIFY2(made && isDesigned(*made), qPrintable(c.name));
            auto *const sheet = qt_extension<QDesignerPropertySheetExtension *>(
                m_engine->core->extensionManager(), made);
            for (const auto &[name, value] : c.values) {
                const int index = sheet->indexOf(name);
                QVERIFY2(index >= 0 && sheet->isVisible(index), name);
            }
            for (const QByteArray &name : kClosed) {
                if (sheet->indexOf(name) < 0) continue;
                QVERIFY2(sheet->isVisible(sheet->indexOf(name)), name);
                const QVariant before = made->property(name);
                made->setProperty(name, "1-3");
                QCOMPARE(made->property(name), before);
            }
            holdsValues(loaded(designer.saved(), true).get(), c);
        }
    }

    void thePropertyEditorMaySetThemInAnyOrder()
    {
        std::mt19937 random(11);
        for (Control c : controls()) {
            std::erase_if(c.values, [](const auto &v) { return v.second.typeId() == QMetaType::QString; });
            for (int turn = 0; turn < 5; ++turn) {
                std::ranges::shuffle(c.values, random);
                const Designer designer(*m_engine, {c.name, {}});
                for (const auto &[name, value] : c.values)
                    designer.form->cursor()->setWidgetProperty(designer.control, name, value);
                holdsValues(loaded(designer.saved(), turn % 2).get(), c);
            }
        }
    }

    void aCompiledFormHoldsItsValues()
    {
        QWidget form;
        Ui::AttributeForm ui;
        ui.setupUi(&form);
        form.show();
        QCOMPARE(ui.width->Value().toDouble(), 12.5);
        QCOMPARE(ui.width->Min(), 10.0);
        QCOMPARE(ui.width->txtCombo->currentText(), "12.50");
        QCOMPARE(ui.width->AfterString(), "cm");
        QVERIFY(ui.layers->SingleLine());
    }
};
QVDC_TEST(tst_Forms)
#include "tst_Forms.moc"
