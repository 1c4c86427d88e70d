#include "document/SqliteDoc.h"

#include "support/Registry.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace ZolWDoc;
using refhost::DocumentError;
using refhost::Element;
using refhost::ElementKind;
using refhost::SqliteDoc;

class tst_SqliteDoc : public QObject {
    Q_OBJECT
private slots:
    void anEmptyDrawingWorksAtOnce()
    {
        const auto doc = SqliteDoc::create(QStringLiteral(":memory:"));
        QCOMPARE(doc->layers().count(), 1);
        QCOMPARE(doc->layers().currentId(), qint16(1));
        QCOMPARE(doc->layers().groups().front().GroupName, QStringLiteral("RENDSZER"));
        QCOMPARE(doc->layers().groupOf(1), qint16(1));
        QCOMPARE(doc->textTypes().count(), 1);
        QCOMPARE(doc->symbols().count(), 1);
        QCOMPARE(doc->lineTypes().readAll().front().Size, 0.18f);
        QCOMPARE(doc->penColors().read().pen(7), (PenColorPair{7, 0}));
        Element e{.layId = 1, .penStyleId = 1, .vertices = {{1, 2, 0.5}, {3, 4}}, .closed = true};
        e.id = doc->addElement(e);
        QCOMPARE(doc->elements().front(), e);
        QCOMPARE(doc->lineTypes().uses(1), 2); // the element and the layer
    }
};

QVDC_TEST(tst_SqliteDoc)
#include "tst_SqliteDoc.moc"
