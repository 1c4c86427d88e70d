#pragma once

#include "support/FaultyDoc.h"

#include <QApplication>
#include <QTest>
#include <QTimer>

namespace tests {

/// Lets every call of the document on the road through a dialog fail once, until one road leads to its end.
/// `road` opens the dialog on a document and says whether its user confirmed; `act` is the user, once it is
/// open; `after` looks at what a failure leaves. The caller must get the document's own error, with no dialog
/// left open. Comes back: the number of calls; 0 = the test has failed.
template <class Dialog, class Road, class Act, class After>
int failEachCall(ZolWDoc::ZOLW_Doc &doc, Road road, Act act, After after)
{
    const auto fail = [](const QString &why) { return QTest::qFail(qPrintable(why), __FILE__, __LINE__), 0; };
    for (int at = 0;; ++at) {
        FaultyDoc faulty(doc);
        faulty.log.failAt = at;
        QTimer user;
        user.callOnTimeout([&] {
            auto *const dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget());
            if (dialog) user.stop(), act(*dialog);
        });
        user.start(0);
        try {
            return road(faulty) ? at : fail(QStringLiteral("not confirmed"));
        } catch (const HostError &e) {
            const QString call = faulty.log.calls.value(at);
            if (call != QString::fromUtf8(e.what())) return fail(call);
        }
        if (QApplication::activeModalWidget())
            return fail(faulty.log.calls[at] + QStringLiteral(": a dialog is open"));
        after();
    }
}

} // namespace tests
