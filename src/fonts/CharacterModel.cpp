#include "fonts/CharacterModel.h"

#include "facade/services/Text.h"

#include <algorithm>

namespace QV_DOC_CONTROLS {

void CharacterModel::readPresent()
{
    m_present = m_source && m_onlyPresent ? m_source->codes() : std::vector<quint16>();
}

void CharacterModel::setSource(std::shared_ptr<CharacterSource> source)
{
    beginResetModel();
    m_source = std::move(source);
    readPresent();
    endResetModel();
}

void CharacterModel::setOnlyPresent(bool on)
{
    beginResetModel();
    m_onlyPresent = on;
    readPresent();
    endResetModel();
}

int CharacterModel::codeAt(int cell) const
{
    if (cell < 0 || cell >= count()) return -1;
    return m_onlyPresent ? m_present[size_t(cell)] : cell;
}

int CharacterModel::cellOf(int code) const
{
    if (!m_onlyPresent) return code;
    const auto at = std::ranges::lower_bound(m_present, code);
    return at != m_present.end() && *at == code ? int(at - m_present.begin()) : -1;
}

void CharacterModel::retranslate()
{
    emit dataChanged(index(0, 0), index(rowCount() - 1, kPerLine - 1), {Qt::AccessibleTextRole});
}

int CharacterModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : (count() + kPerLine - 1) / kPerLine;
}

QString CharacterModel::spoken(int code) const
{
    const bool isThere = m_source && m_source->has(code);
    QStringList parts{codeText(code), QString::number(code)};
    parts << (isThere ? m_source->nameOf(code) : txt(Text{22458, u"A készletben nincs ilyen karakter."}));
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

QVariant CharacterModel::data(const QModelIndex &index, int role) const
{
    const int code = index.isValid() ? codeAt(index.row() * kPerLine + index.column()) : -1;
    if (code < 0 || role != Qt::AccessibleTextRole) return {};
    return spoken(code);
}

/// Lines begin with the code of their first cell; columns are its last digit while no code is left out.
QVariant CharacterModel::headerData(int section, Qt::Orientation turned, int role) const
{
    if (role != Qt::DisplayRole) return {};
    if (turned == Qt::Horizontal) return QString::number(section, 16).toUpper();
    return codeText(codeAt(section * kPerLine));
}

Qt::ItemFlags CharacterModel::flags(const QModelIndex &index) const
{
    const bool isCell = index.isValid() && index.row() * kPerLine + index.column() < count();
    return isCell ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags;
}

} // namespace QV_DOC_CONTROLS
