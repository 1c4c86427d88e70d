#pragma once

#include "controls/DesignMode.h"
#include "controls/ZOL3_LayGroup.h"
#include "controls/usLays.h"
#include "facade/services/Language.h"
#include "support/LayerDoc.h"

#include "support/QtClasses.h"

namespace tests {

using namespace QV_DOC_CONTROLS;

/// A host's dialog with one layer set control, and what the control raised.
template <class Control> struct Form {
    QDialog dialog;
    Control *control = new Control(&dialog);
    QPushButton *ok = new QPushButton(&dialog);
    QStringList raised; ///< the set's text at every ChangeLays

    explicit Form(ZolWDoc::ZOLW_Doc *doc = nullptr)
    {
        auto *const column = new QVBoxLayout(&dialog);
        column->addWidget(control);
        column->addWidget(ok);
        ok->setDefault(true);
        QObject::connect(control, &LayerSetControl::ChangeLays, control,
                         [this](LayerSet &set) { raised << layerSetText(set.layers()); });
        dialog.resize(400, 120);
        dialog.show();
        dialog.activateWindow();
        QApplication::setActiveWindow(&dialog);
        control->txtLays->setFocus();
        if (doc) arrives(*doc);
    }
    void arrives(ZolWDoc::ZOLW_Doc &doc)
    {
        if constexpr (std::is_same_v<Control, usLays>) control->SetLayArr(doc.layers().readAll());
        else control->setZOLW_Doc(&doc);
    }
    QLineEdit &box() { return *control->txtLays; }
    QComboBox &list() { return *control->cboLays; }
    void type(const char *keys)
    {
        box().selectAll();
        QTest::keyClick(&box(), Qt::Key_Delete);
        QTest::keyClicks(&box(), keys);
    }
    void leave() { ok->setFocus(); }
    /// The entry of this item data, with the keyboard, as a user does.
    void pick(int itemData)
    {
        list().setFocus();
        QTest::keyClick(&list(), Qt::Key_Home);
        while (list().currentData().toInt() != itemData) {
            const int before = list().currentIndex();
            QTest::keyClick(&list(), Qt::Key_Down);
            if (list().currentIndex() == before) return QTest::qFail("no such entry", __FILE__, __LINE__);
        }
    }
    QString numbers() { return layerSetText(control->CollectionLays().layers()); }
    QStringList entries()
    {
        QStringList out;
        for (int i = 0; i < list().count(); ++i)
            out << QString::number(list().itemData(i).toInt()) + u' ' + list().itemText(i);
        return out;
    }
    /// What was raised since the last look, the text and the entry: "[1][1-3] 1-3 (Felsorolt rétegek)".
    QString look()
    {
        QString out;
        for (const QString &set : std::exchange(raised, {})) out += u'[' + set + u']';
        out += u' ' + box().text() + u' ' + list().currentText();
        if (control->sLays() != box().text()) out += ", but says " + control->sLays();
        if (control->sLayGroup() != list().currentText()) out += ", but says " + control->sLayGroup();
        return out;
    }
};
using DocForm = Form<ZOL3_LayGroup>;
using ArrayForm = Form<usLays>;

constexpr int kCurrent = -1, kAll = -2, kVisible = -3, kEnumerated = -4;

/// Five layers, three of them visible, the third current; each test begins in Hungarian with a new document.
class LayerSetTest : public QObject {
protected:
    std::unique_ptr<refhost::SqliteDoc> m_doc;
    ZolWDoc::tLay layer(qint16 number) { return *m_doc->layers().findByNumber(number); }
    void begin()
    {
        setLanguage(Hungarian, {});
        m_doc = layerDoc("1 A, -2 B, 3 C, 4 D, -7 E");
        m_doc->layers().makeCurrent(layer(3));
    }
    static void end()
    {
        setDesignedTest(nullptr);
        QVERIFY2(traceObjects().entries().empty(), "a control was not released");
    }
};

} // namespace tests
