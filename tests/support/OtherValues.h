#pragma once

#include <QColor>
#include <QFont>
#include <QMetaProperty>
#include <QWidget>

namespace tests {

/// The properties of a control's own, each with a value that is not its present one.
inline std::vector<std::pair<QByteArray, QVariant>> otherValues(const QWidget &control)
{
    std::vector<std::pair<QByteArray, QVariant>> values;
    const QMetaObject &type = *control.metaObject();
    for (int i = QWidget::staticMetaObject.propertyCount(); i < type.propertyCount(); ++i) {
        QVariant value = type.property(i).read(&control);
        switch (value.typeId()) {
        case QMetaType::Bool: value = !value.toBool(); break;
        case QMetaType::Int: value = value.toInt() + 1; break;
        case QMetaType::Double: value = value.toDouble() + 0.25; break;
        case QMetaType::QColor: value = QColor(0x11, 0x22, 0x33); break;
        case QMetaType::QFont: value = QFont("DejaVu Serif", 17); break;
        case QMetaType::QString: value = "7"; break;
        default: continue;
        }
        values.emplace_back(type.property(i).name(), value);
    }
    return values;
}

} // namespace tests
