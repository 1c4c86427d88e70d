#include "kit/forms/PropertyBag.h"

#include <QFont>
#include <QMetaProperty>
#include <QWidget>

namespace QV_DOC_CONTROLS {
namespace {

template <class... F> struct Overloaded : F... { using F::operator()...; };

QMetaProperty propertyOf(const QWidget &control, const BagRow &row)
{
    const QMetaObject &type = *control.metaObject();
    const int index = type.indexOfProperty(row.property);
    Q_ASSERT_X(index >= 0, "PropertyBag", row.property);
    return type.property(index);
}

/// As it is stored in the bag.
QVariant defaultOf(const QWidget &control, const BagRow &row)
{
    return std::visit(Overloaded{
        [](std::monostate) { return QVariant(); },
        [](Text text) { return QVariant(txt(text)); },
        [](const char16_t *text) { return QVariant(QString::fromUtf16(text)); },
        [](SystemColor color) { return QVariant(color.number); },
        [&](ContainerFont) {
            const QWidget *const around = control.parentWidget();
            return QVariant(around ? around->font() : QFont());
        },
        [](auto plain) { return QVariant(plain); },
    }, row.fallback);
}

QVariant stored(const QVariant &value)
{
    return value.typeId() == QMetaType::QColor ? QVariant(systemColor(value.value<QColor>()).number) : value;
}

bool write(QWidget &control, const QMetaProperty &property, const QVariant &value)
{
    if (!value.isValid()) return false;
    if (property.typeId() != QMetaType::QColor) return property.write(&control, value);
    bool isNumber = false;
    const quint32 number = value.toUInt(&isNumber);
    return isNumber && property.write(&control, propertyColor({number}));
}

} // namespace

QVariantMap bagOf(const QWidget &control, std::span<const BagRow> rows)
{
    QVariantMap bag;
    for (const BagRow &row : rows) {
        const QVariant value = stored(propertyOf(control, row).read(&control));
        if (value.isValid() && value != defaultOf(control, row)) bag.insert(QLatin1String(row.key), value);
    }
    return bag;
}

void readBag(QWidget &control, std::span<const BagRow> rows, const QVariantMap &bag)
{
    for (const BagRow &row : rows) {
        const QMetaProperty property = propertyOf(control, row);
        if (write(control, property, bag.value(QLatin1String(row.key)))) continue;
        if (property.isResettable()) property.reset(&control);
        else write(control, property, defaultOf(control, row));
    }
}

} // namespace QV_DOC_CONTROLS
