#pragma once

#include "facade/services/Prompts.h"

namespace tests {

/// A user who says yes to everything, takes the last of several things and always types the same.
struct WillingPrompts : QV_DOC_CONTROLS::Prompts {
    std::vector<double> typed = {1000};
    QString written = "X";
    QString path;
    QV_DOC_CONTROLS::Prompts *before = QV_DOC_CONTROLS::setPrompts(this);
    ~WillingPrompts() override { QV_DOC_CONTROLS::setPrompts(before); }

    void tell(const QV_DOC_CONTROLS::Message &, QObject *) override {}
    void show(const QV_DOC_CONTROLS::Report &, QObject *) override {}
    bool yesNo(const QV_DOC_CONTROLS::Message &, QObject *) override { return true; }
    QV_DOC_CONTROLS::AllYesNo allYesNo(const QV_DOC_CONTROLS::Message &, QObject *) override
    {
        return QV_DOC_CONTROLS::AllYesNo::Yes;
    }
    std::optional<bool> yesNoCancel(const QV_DOC_CONTROLS::Message &, QObject *) override { return false; }
    std::optional<int> choose(const QV_DOC_CONTROLS::Choice &c, QObject *) override
    {
        return int(c.items.size()) - 1;
    }
    std::optional<QString> text(const QV_DOC_CONTROLS::TextQuestion &, QObject *) override { return written; }
    std::optional<std::vector<double>> numbers(const QV_DOC_CONTROLS::NumberQuestion &q, QObject *) override
    {
        std::vector<double> answer(q.fields.size(), 1);
        std::copy_n(typed.begin(), std::min(typed.size(), answer.size()), answer.begin());
        return answer;
    }
    std::optional<int> colorIndex(const QV_DOC_CONTROLS::ColorIndexQuestion &, QObject *) override
    {
        return 0;
    }
    QString openFile(const QV_DOC_CONTROLS::FileQuestion &, QObject *) override { return path; }
    QString saveFile(const QV_DOC_CONTROLS::FileQuestion &, QObject *) override { return path; }
};

} // namespace tests
