#include "facade/services/Language.h"
#include "support/FaultyDoc.h"
#include "support/FileDesk.h"
#include "support/LayerForm.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"
#include "support/WillingPrompts.h"

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;
using tests::ScriptedPrompts;
using Step = ScriptedPrompts::Step;

namespace {

Step textFileAsked(const QString &title, const QString &path)
{
    return {"openFile", title, QStringLiteral("Rétegek (*.txt)|*.txt"), path};
}

} // namespace

/// Commands that are the host's in the end: text files, and what stands on layers.
class tst_LayerHostRoles : public QObject, private tests::FileDesk {
    Q_OBJECT
private slots:
    void init()
    {
        setLanguage(Hungarian, {});
        layOut();
    }
    void cleanup() { m_store.reset(); }                 // before there is another

    void textFilesGoToTheHost_data()
    {
        QTest::addColumn<QByteArray>("tool");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("after");
        QTest::newRow("names") << QByteArray("cmdLays_FileRename") << "Rétegek átnevezése"
                               << QByteArray("2 Liget\n") << "1 Út, 2 Liget, 3 Árok";
        QTest::newRow("numbers") << QByteArray("cmdLays_FileRenum") << "Rétegek sorszámozása"
                                 << QByteArray("2 20\n") << "1 Út, 20 Erdő, 3 Árok";
        QTest::newRow("new ones") << QByteArray("cmdLays_FileAddNew") << "Rétegek felvétele fájlból"
                                  << QByteArray("7 Liget\n") << "1 Út, 2 Erdő, 3 Árok, 7 Liget";
    }
    void textFilesGoToTheHost()
    {
        QFETCH(QByteArray, tool);
        QFETCH(QString, title);
        QFETCH(QByteArray, text);
        QFETCH(QString, after);
        const QString path = written("list.txt", text);
        tests::LayerForm form(*m_doc);
        form.select({2});
        {
            ScriptedPrompts user({textFileAsked(title, {}), textFileAsked(title, path)});
            form.run(tool.constData());
            QCOMPARE(tests::dump(*m_doc), QStringLiteral("1 Út, 2 Erdő, 3 Árok"));
            form.run(tool.constData());
        }
        QCOMPARE(tests::dump(*m_doc), after);
        QCOMPARE(form.js.currentRecord(), m_doc->layers().find(form.js.currentRecord()->LayId));
        QCOMPARE(form.rows(), m_doc->layers().readAll());

        written("list.txt", "2 Út\n2 Árok\n");        // the host refuses it
        ScriptedPrompts user({textFileAsked(title, path)});
        form.run(tool.constData());
        QVERIFY(form.error);
        QCOMPARE(tests::dump(*m_doc), after);
    }

    void allTextFilesOfTheLastFolderAreProposed()
    {
        struct Paths final : tests::WillingPrompts {
            QStringList proposed;
            QString openFile(const FileQuestion &q, QObject *) override { return proposed << q.path, path; }
        } user;
        user.path = written("list.txt", "2 Liget\n");
        tests::LayerForm form(*m_doc);
        form.run("cmdLays_FileRename");
        form.run("cmdLays_FileRename");
        m_folder->remove();
        user.path.clear();
        form.run("cmdLays_FileRename");
        QCOMPARE(user.proposed, (QStringList{"*.txt", m_folder->path() + "/*.txt", "*.txt"}));
    }

    void elementsGoTheirLayersStay()
    {
        refhost::Element line;
        line.kind = refhost::ElementKind::Line;
        line.vertices = {{0, 0}, {1, 1}};
        for (const qint16 nr : {1, 1, 2}) {
            line.layId = m_doc->layers().findByNumber(nr)->LayId;
            m_doc->addElement(line);
        }
        tests::LayerForm form(*m_doc);
        form.select({1, 3});
        const QString title = QStringLiteral("Rétegek elemeinek törlése");
        const auto asked = [&](bool answer) {
            return Step{"yesNo", title,
                        QStringLiteral("Kijelölt rétegek száma: 2\nRajzelemek rajtuk: 2\n"
                                       "Biztosan törlöd ezeket a rajzelemeket? A rétegek megmaradnak."),
                        answer, Icon::Exclamation};
        };
        ScriptedPrompts user({asked(false), asked(true),
                              {"tell", title, QStringLiteral("A kijelölt rétegeken nincs rajzelem."), {},
                               Icon::Information}});
        form.run("cmdLays_DeleteObjs");
        QCOMPARE(m_doc->elements().size(), size_t(3));
        form.run("cmdLays_DeleteObjs");
        QCOMPARE(m_doc->elements().size(), size_t(1));
        form.run("cmdLays_DeleteObjs");
        QCOMPARE(tests::dump(*m_doc), QStringLiteral("1 Út, 2 Erdő, 3 Árok"));
        QCOMPARE(form.selection(), QStringLiteral("1* 3"));
    }

    void whatTheHostLacksIsDisabled()
    {
        struct Poor final : tests::FaultyDoc {
            using FaultyDoc::FaultyDoc;
            LayerFileRole *layerFiles() override { return nullptr; }
            LayerElementsRole *layerElements() override { return nullptr; }
        } poor(*m_doc);
        tests::LayerForm form(poor);
        form.select({1});
        QVERIFY(!form.js.canAddFromFile() && !form.js.canDeleteElements());
        ScriptedPrompts nothing;
        form.js.addFromFile();                          // asked for all the same
        form.js.deleteElements();
        QVERIFY(!form.error);
    }
};

QVDC_TEST(tst_LayerHostRoles)
#include "tst_LayerHostRoles.moc"
