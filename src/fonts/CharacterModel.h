#pragma once

#include "fonts/CharacterSource.h"

#include <QAbstractTableModel>

namespace QV_DOC_CONTROLS {

/// The codes of a font's characters, sixteen in a line.
class CharacterModel final : public QAbstractTableModel {
public:
    static constexpr int kPerLine = 16;
    using QAbstractTableModel::QAbstractTableModel;
    void setSource(std::shared_ptr<CharacterSource> source);
    void setOnlyPresent(bool on);
    bool onlyPresent() const { return m_onlyPresent; }
    const CharacterSource *source() const { return m_source.get(); }        ///< null = none
    CharacterSource *source() { return m_source.get(); }

    int count() const { return m_onlyPresent ? int(m_present.size()) : kCodes; }
    int codeAt(int cell) const;                 ///< -1 outside
    int cellOf(int code) const;                 ///< -1 = not shown
    void retranslate();

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override { return parent.isValid() ? 0 : kPerLine; }
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation turned, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    void readPresent();
    QString spoken(int code) const;
    std::shared_ptr<CharacterSource> m_source;
    std::vector<quint16> m_present;             ///< read when only those are shown
    bool m_onlyPresent = false;
};

} // namespace QV_DOC_CONTROLS
