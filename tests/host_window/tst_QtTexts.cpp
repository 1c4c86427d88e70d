#include "window/HostServices.h"

#include "facade/services/Language.h"
#include "kit/forms/AccessKeys.h"

#include "support/Registry.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QRegularExpression>

using namespace refhost;
using namespace QV_DOC_CONTROLS;

/// What Qt itself shows speaks the program's language.
class tst_QtTexts : public QObject {
    Q_OBJECT
private:
    /// Everything that a window of Qt says, without the marks of access keys. Units, numbers and names of
    /// paper are signs, not texts.
    static QStringList textsOf(QWidget &window)
    {
        QStringList all;
        for (QAbstractButton *b : window.findChildren<QAbstractButton *>())
            all << b->text() << b->toolTip() << b->accessibleName() << b->accessibleDescription();
        for (QLabel *l : window.findChildren<QLabel *>()) all << l->text();
        for (QAction *a : window.findChildren<QAction *>()) all << a->text();
        for (QGroupBox *g : window.findChildren<QGroupBox *>()) all << g->title();
        for (QHeaderView *h : window.findChildren<QHeaderView *>())
            for (int i = 0; h->model() && i < h->model()->columnCount(); ++i)
                all << h->model()->headerData(i, Qt::Horizontal).toString();
        static const QRegularExpression sign("^(\\d.*|\\.\\.\\.|OK|mm|[A-Z]?\\d+.*|)$");
        for (QString &s : all) s.remove(u'&');
        all.removeIf([](const QString &s) { return sign.match(s).hasMatch(); });
        return all;
    }
    static QStringList contextMenuOf(QLineEdit &edit)
    {
        const std::unique_ptr<QMenu> menu(edit.createStandardContextMenu());
        QStringList all;
        for (const QAction *a : menu->actions())
            if (!a->isSeparator()) all << a->text().section(u'\t', 0, 0);
        return all;
    }
    static QStringList both(const QStringList &a, const QStringList &b)
    {
        QStringList in;
        for (const QString &s : a)
            if (b.contains(s)) in << s;
        return in;
    }

private slots:
    void windowsFollowTheLanguageAtOnce()
    {
        HostServices services;
        services.language()->setForThisRun(English);
        QDialogButtonBox box(QDialogButtonBox::Save | QDialogButtonBox::Discard);
        QFileDialog files;
        files.setOption(QFileDialog::DontUseNativeDialog);
        QLineEdit edit("x");
        QPrinter printer;
        printer.setOutputFormat(QPrinter::PdfFormat);
        const auto printing = [&printer] { // made anew: an open one keeps its language
            QPrintDialog dialog(&printer);
            return textsOf(dialog);
        };
        const QStringList english = textsOf(files), menu = contextMenuOf(edit), print = printing();
        QVERIFY(english.contains("Parent Directory") && english.contains("Date Modified"));
        QVERIFY(menu.contains("Cu&t") && print.contains("Print range") && print.contains("Location:"));
        for (const int id : {Hungarian, Romanian, Vietnamese}) {
            services.language()->setForThisRun(id);
            QCoreApplication::sendPostedEvents(); // to the windows
            QCOMPARE(both(english, textsOf(files)), QStringList());
            QCOMPARE(both(menu, contextMenuOf(edit)), QStringList());
            QCOMPARE(both(print, printing()), QStringList());
            QVERIFY(box.button(QDialogButtonBox::Discard)->text() != "Discard");
            QString keys;
            for (const QString &command : contextMenuOf(edit)) {
                const QChar key = accessKeyOf(command);
                QVERIFY2(key.isNull() || !keys.contains(key), qPrintable(command));
                if (!key.isNull()) keys += key;
            }
            QCOMPARE(keys.size(), 5);
        }
        QCOMPARE(box.button(QDialogButtonBox::Save)->text(), "Lưu");
        services.language()->setForThisRun(English);
        QCoreApplication::sendPostedEvents();
        QCOMPARE(textsOf(files), english);
    }
};

QVDC_TEST(tst_QtTexts)
#include "tst_QtTexts.moc"
