#pragma once

#include "fonts/FontSample.h"
#include "kit/ask/ErrorRelay.h"
#include "kit/forms/ModalForm.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QVBoxLayout;

namespace QV_DOC_CONTROLS {

/// A list of faces that is searched by typing, and letters of the chosen one. OK needs a chosen face.
class FaceChooser : public ModalForm {
    Q_OBJECT
    ErrorRelay m_host;                          ///< before those who run inside it
public:
    void TearDown() override { sample->showLetters(nullptr); }

    QLineEdit *const txtSearch;
    QListWidget *const lstFaces;
    QLabel *const lblHint;                      ///< what is the matter with the choice
    FontSample *const sample;

protected:
    FaceChooser(const char *form, QWidget *owner);
    QVBoxLayout &column() const { return *m_column; }   ///< between list and sample there is room for more
    /// Runs with the faces; `first` is chosen, in any case of letters, or said to be unknown.
    bool choose(const QStringList &faces, const QString &first);
    QString face() const;                       ///< empty = none
    void say(const QString &hint);
    virtual std::shared_ptr<CharacterSource> charactersOf(const QString &face) = 0;
    virtual void faceChosen();                  ///< also at first; none or another one
    void showSample();
    void readCaptions() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void search(const QString &text);
    QVBoxLayout *m_column;
    QLabel *m_lblSearch;
    QString m_unknown;                          ///< what was asked for and is not there
};

} // namespace QV_DOC_CONTROLS
