#pragma once

#include <QLocale>
#include <QWidget>

class QLabel;
class QLineEdit;

namespace QV_DOC_CONTROLS {

/// The line above a grid that says which rows are shown, and how many.
///
/// Esc clears it, a second Esc goes back to the grid; neither reaches the dialog, nor does Enter, which goes
/// to the grid.
class FilterLine final : public QWidget {
    Q_OBJECT
public:
    explicit FilterLine(QWidget *parent);
    QString text() const;
    void clear();
    void setCounts(int shown, int all, int hiddenSelected);
    void retranslate(const QLocale &locale);
    QLineEdit *edit() const { return m_edit; }
signals:
    void changed();
    void focused();
    void gridAsked();                                   ///< the focus is to go there
protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
private:
    bool isTaken(int key);
    QLineEdit *m_edit;
    QLabel *m_count;
    QLocale m_locale;
    int m_shown = 0, m_all = 0, m_hidden = 0;
};

} // namespace QV_DOC_CONTROLS
