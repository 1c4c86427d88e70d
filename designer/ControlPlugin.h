#pragma once

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

namespace QV_DOC_CONTROLS {

struct ControlRow;

/// One control of the widget box.
class DesignerControl final : public QObject, public QDesignerCustomWidgetInterface {
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)
public:
    DesignerControl(const ControlRow &row, QObject *parent) : QObject(parent), m_row(row) {}
    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override { return toolTip(); }
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override { return false; }
    QWidget *createWidget(QWidget *parent) override;
    QString domXml() const override;
private:
    const ControlRow &m_row;
};

/// The public controls for Qt Designer, and for programs that load forms at run time.
class ControlPlugin final : public QObject, public QDesignerCustomWidgetCollectionInterface {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface")
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)
public:
    ControlPlugin();
    QList<QDesignerCustomWidgetInterface *> customWidgets() const override { return m_controls; }
private:
    QList<QDesignerCustomWidgetInterface *> m_controls;
};

} // namespace QV_DOC_CONTROLS
