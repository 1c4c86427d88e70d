#pragma once

#include "kit/grid/Grid.h"
#include "support/ViewDrag.h"

namespace tests {

/// The form on the screen, so that its rows have places.
template <class Form> struct ShownForm : Form {
    using Form::grid, Form::groups, Form::window;
    explicit ShownForm(ZolWDoc::ZOLW_Doc &doc) : Form(doc)
    {
        grid.setGeometry(0, 0, 400, 300), groups.setGeometry(400, 0, 200, 300);
        groups.setListOnly(true);
        window.resize(600, 300);
        window.show();
    }
    static std::unique_ptr<QMimeData> dragged(QV_DOC_CONTROLS::Grid &from)
    {
        return tests::dragged(*from.activeView());
    }
    /// On a line of a grid, below the last one with -1; false = refused.
    static bool drop(const QMimeData &mime, QV_DOC_CONTROLS::Grid &on, int line)
    {
        return tests::drop(mime, *on.activeView(), line);
    }
    bool drop(QV_DOC_CONTROLS::Grid &from, QV_DOC_CONTROLS::Grid &on, int line)
    {
        const auto mime = dragged(from);
        return mime && drop(*mime, on, line);
    }
};

} // namespace tests
