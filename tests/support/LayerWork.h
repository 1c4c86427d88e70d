#pragma once

#include "support/LayerForm.h"

#include <QFile>

#include <string_view>

namespace tests {

inline void writeLines(const QString &path, const QStringList &lines)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) QFAIL(qPrintable(path));
    file.write(lines.join(u'\n').toUtf8());
}

/// What the text file of a tool says about the layers of a document with less than 32,768 of them.
inline QStringList linesFor(std::string_view tool, const ZolWDoc::tLayArr &all)
{
    QStringList lines;
    if (tool == "cmdLays_FileAddNew")
        for (int nr = 32100; nr < 32200; ++nr) lines << QStringLiteral("%1 From a file %1").arg(nr);
    else
        for (size_t i = 0; i < all.size(); ++i)
            lines << (tool == "cmdLays_FileRename" ? QStringLiteral("%1 Renamed %1").arg(all[i].gNr)
                          : QStringLiteral("%1 %2").arg(all[i].gNr).arg(all[all.size() - 1 - i].gNr));
    return lines;
}

/// Gives a tool something to do: the group "Utak" chosen (third of the list), the file `path` to read.
inline void prepare(std::string_view tool, LayerForm &form, ZolWDoc::ZOLW_Doc &doc, const QString &path)
{
    const bool ofGroup = tool.starts_with("cmdLay_Group") || tool.starts_with("miGroup") ||
                         tool.starts_with("cmdGroup");
    const bool ofSelected = tool == "cmdLay_GroupMove" || tool == "cmdLay_GroupCopy";
    if (ofGroup && !ofSelected) form.groups.setCurrentRow(2);
    if (tool.starts_with("cmdLays_File")) writeLines(path, linesFor(tool, doc.layers().readAll()));
    if (tool != "cmdLays_VisibleUseFile") return;
    form.js.OpLay_Save2File(path);
    ZolWDoc::tLayArr all = doc.layers().readAll();
    for (ZolWDoc::tLay &l : all) l.Visible = !l.Visible;
    doc.layers().writeAll(all);
    form.js.fill();
}

} // namespace tests
