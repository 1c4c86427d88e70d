#include "window/HostServices.h"

#include "facade/services/Language.h"

#include "support/Registry.h"

#include <QAbstractItemModel>
#include <QAction>
#include <QContextMenuEvent>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QToolButton>

using namespace refhost;
using namespace QV_DOC_CONTROLS;

/// What Qt itself shows speaks the program's language.
class tst_QtTexts : public QObject {
    Q_OBJECT
private:
    std::unique_ptr<HostServices> m_services;

    /// Everything that a window of Qt says, without the marks of access keys.
    static QStringList textsOf(QWidget &window)
    {
        QStringList all;
        for (QAbstractButton *b : window.findChildren<QAbstractButton *>())
            all << b->text() << b->toolTip() << b->accessibleName() << b->accessibleDescription();
        for (QLabel *l : window.findChildren<QLabel *>()) all << l->text();
        for (QAction *a : window.findChildren<QAction *>()) all << a->text();
        for (QHeaderView *h : window.findChildren<QHeaderView *>())
            for (int i = 0; h->model() && i < h->model()->columnCount(); ++i)
                all << h->model()->headerData(i, Qt::Horizontal).toString();
        for (QString &s : all) s.remove(u'&');
        all.removeDuplicates();
        all.removeAll(QString());
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

private slots:
    void init()
    {
        m_services = std::make_unique<HostServices>();
        m_services->language()->setForThisRun(English);
    }
    void cleanup() { m_services.reset(); }

    void openWindowsFollowTheLanguageAtOnce()
    {
        QDialogButtonBox box(QDialogButtonBox::Save | QDialogButtonBox::Cancel | QDialogButtonBox::Discard);
        QFileDialog files;
        files.setOption(QFileDialog::DontUseNativeDialog);
        QLineEdit edit(QStringLiteral("x"));
        const QStringList english = textsOf(files), menu = contextMenuOf(edit);
        QVERIFY(english.contains(QStringLiteral("Parent Directory")) &&
                english.contains(QStringLiteral("Date Modified")));
        QVERIFY(menu.contains(QStringLiteral("Cu&t")));
        for (int id : {Hungarian, Romanian, Vietnamese}) {
            m_services->language()->setForThisRun(id);
            QCoreApplication::sendPostedEvents(); // to the windows
            QStringList left;
            const QStringList own = textsOf(files) + contextMenuOf(edit);
            for (const QString &s : english + menu)
                if (own.contains(s)) left << s;
            QCOMPARE(left.join(u'|'), QString());
            QVERIFY(box.button(QDialogButtonBox::Discard)->text() != QStringLiteral("Discard"));
        }
        QCOMPARE(box.button(QDialogButtonBox::Save)->text(), QStringLiteral("Lưu"));
        m_services->language()->setForThisRun(English);
        QCoreApplication::sendPostedEvents();
        QCOMPARE(textsOf(files), english);
    }

    void thePrintDialogFollows()
    {
        QPrinter printer;
        printer.setOutputFormat(QPrinter::PdfFormat);
        QPrintDialog dialog(&printer);
        // Units and numbers of pages on a sheet are signs, not texts.
        static const QRegularExpression sign(QStringLiteral("^(\\d.*|\\.\\.\\.|OK|mm|[A-Z]?\\d+.*)$"));
        const auto said = [&dialog] {
            QStringList all = textsOf(dialog);
            for (QGroupBox *g : dialog.findChildren<QGroupBox *>()) all << g->title();
            all.removeIf([](const QString &s) { return sign.match(s).hasMatch(); });
            return all;
        };
        const QStringList english = said();
        QVERIFY(english.contains(QStringLiteral("Print range")) &&
                english.contains(QStringLiteral("Location:")));
        for (int id : {Hungarian, Romanian, Vietnamese}) {
            m_services->language()->setForThisRun(id);
            QPrintDialog own(&printer);
            QStringList left;
            for (const QString &s : textsOf(own))
                if (english.contains(s)) left << s;
            QCOMPARE(left.join(u'|'), QString());
        }
    }

    void textsKeepTheirPlacesAndKeys_data()
    {
        QTest::addColumn<QByteArray>("context");
        QTest::addColumn<QByteArray>("source");
        const auto row = [](const char *context, const char *source) {
            QTest::newRow(source) << QByteArray(context) << QByteArray(source);
        };
        row("QFileDialog", "'%1' is write protected.\nDo you want to delete it anyway?");
        row("QFileDialog", "%1 already exists.\nDo you want to replace it?");
        row("QFileDialog", "%1\nFile not found.\nPlease verify the correct file name was given.");
        row("QAbstractFileIconProvider", "%1 File");
        row("QFileDialog", "Show &hidden files");
        row("QWidgetTextControl", "Cu&t");
        row("QPlatformTheme", "Yes to &All");
        row("QAbstractSpinBox", "Step &down");
    }
    void textsKeepTheirPlacesAndKeys()
    {
        QFETCH(QByteArray, context);
        QFETCH(QByteArray, source);
        const QString english = QString::fromLatin1(source);
        for (int id : {Hungarian, Romanian, Vietnamese}) {
            m_services->language()->setForThisRun(id);
            const QString own = QCoreApplication::translate(context, source);
            QVERIFY2(own != english, qPrintable(own));
            for (const char *mark : {"%1", "&", "\n"})
                QCOMPARE(own.count(QLatin1String(mark)), english.count(QLatin1String(mark)));
        }
    }

    void editingMenusHaveAKeyOfTheirOwnForEachCommand()
    {
        QLineEdit edit;
        for (int id : {Hungarian, Romanian, Vietnamese}) {
            m_services->language()->setForThisRun(id);
            QSet<QChar> keys;
            for (const QString &text : contextMenuOf(edit)) {
                const qsizetype at = text.indexOf(u'&');
                if (at < 0) continue;
                QVERIFY2(!keys.contains(text.at(at + 1).toLower()), qPrintable(text));
                keys.insert(text.at(at + 1).toLower());
            }
            QCOMPARE(keys.size(), 5);
        }
    }
};

QVDC_TEST(tst_QtTexts)
#include "tst_QtTexts.moc"
