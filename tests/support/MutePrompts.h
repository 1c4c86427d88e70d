#pragma once

#include "facade/services/Prompts.h"

namespace tests {

/// A user who closes every box, where it is no matter which and how many.
class MutePrompts final : public QV_DOC_CONTROLS::Prompts {
public:
    MutePrompts() : m_before(QV_DOC_CONTROLS::setPrompts(this)) {}
    ~MutePrompts() override { QV_DOC_CONTROLS::setPrompts(m_before); }
    void tell(const QV_DOC_CONTROLS::Message &, QObject *) override {}
    void show(const QV_DOC_CONTROLS::Report &, QObject *) override {}
    bool yesNo(const QV_DOC_CONTROLS::Message &, QObject *) override { return false; }
    QV_DOC_CONTROLS::AllYesNo allYesNo(const QV_DOC_CONTROLS::Message &, QObject *) override { return {}; }
    std::optional<bool> yesNoCancel(const QV_DOC_CONTROLS::Message &, QObject *) override { return {}; }
    std::optional<int> choose(const QV_DOC_CONTROLS::Choice &, QObject *) override { return {}; }
    std::optional<QString> text(const QV_DOC_CONTROLS::TextQuestion &, QObject *) override { return {}; }
    std::optional<std::vector<double>> numbers(const QV_DOC_CONTROLS::NumberQuestion &, QObject *) override
    {
        return {};
    }
    std::optional<int> colorIndex(const QV_DOC_CONTROLS::ColorIndexQuestion &, QObject *) override
    {
        return {};
    }
    QString openFile(const QV_DOC_CONTROLS::FileQuestion &, QObject *) override { return {}; }
    QString saveFile(const QV_DOC_CONTROLS::FileQuestion &, QObject *) override { return {}; }

private:
    QV_DOC_CONTROLS::Prompts *m_before;
};

} // namespace tests
