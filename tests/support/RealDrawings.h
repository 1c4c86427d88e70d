#pragma once

#include "facade/clsDocDlgs.h"
#include "facade/services/Language.h"
#include "import/DxfImport.h"
#include "support/DrawingReader.h"
#include "support/OwnStore.h"
#include "support/Someone.h"

#include "support/QtClasses.h"

namespace tests {

/// The six drawings to try on, a row each.
inline void addDrawingRows()
{
    QTest::addColumn<QString>("path");
    if (qEnvironmentVariableIsEmpty("QVDC_SAMPLES"))
        QSKIP("QVDC_SAMPLES does not name a folder of drawings");
    const QDir folder(qEnvironmentVariable("QVDC_SAMPLES") + QStringLiteral("/dxf"));
    const QFileInfoList files = folder.entryInfoList({QStringLiteral("*.dxf")});
    QCOMPARE(files.size(), 6);
    for (const QFileInfo &f : files) QTest::newRow(qPrintable(f.baseName())) << f.filePath();
}

/// Imports the drawing of the row, opens the setup dialog by `call` and does every act there. After each of
/// them the session's found() must be its expected(): lines of text.
template <class Session, class Acts>
void workThrough(const Acts &acts, bool (QV_DOC_CONTROLS::clsDocDlgs::*call)(ZolWDoc::ZOLW_Doc &))
{
    QFETCH(QString, path);
    QV_DOC_CONTROLS::setLanguage(QV_DOC_CONTROLS::Hungarian, {});
    const QTemporaryDir folder;
    const OwnStore store;
    const QString saved = folder.filePath(QStringLiteral("drawing.qvd"));
    refhost::ImportReport report;
    const auto doc = refhost::DxfImport::into(saved, path, {1, 1000}, report);
    const auto watch = whileModal<QV_DOC_CONTROLS::frmSetup>([&](QV_DOC_CONTROLS::frmSetup &d) {
        DrawingReader file(saved);
        Someone user(d);
        Session session(file, user);
        for (const auto &[name, act] : acts) {
            (session.*act)();
            const QLatin1String what(name);
            QVERIFY2(user.surprises.isEmpty(), qPrintable(what + u'\n' + user.surprises.join(u'\n')));
            QVERIFY2(user.answers.isEmpty(), name);
            const QStringList found = session.found(), wanted = session.expected();
            for (qsizetype i = 0; i < std::max(found.size(), wanted.size()); ++i)
                QVERIFY2(found.value(i) == wanted.value(i),
                         qPrintable(what + QString(": '%1', not '%2'").arg(found.value(i), wanted.value(i))));
        }
        QCOMPARE(child<QV_DOC_CONTROLS::Grid>(d, "gridItems").table()->model()->rowCount(), session.count());
        d.reject();
    });
    QV_DOC_CONTROLS::clsDocDlgs dialogs;
    QVERIFY(!(dialogs.*call)(*doc));
}

} // namespace tests
