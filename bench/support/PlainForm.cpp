#include "bench/support/PlainForm.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCoreApplication>
#include <QHash>
#include <QIcon>
#include <QListView>
#include <QStringListModel>
#include "platform/common/IdleQueue.h"

namespace benchform {

namespace {

// What a dialog's code sets on its form's widgets, in the order they are
// written back: limits before the value they bound.
const char* const CopiedProperties[] = {
    "windowTitle", "text",    "toolTip",          "accessibleName",       "icon", "minimum", "maximum",
    "value",       "checked", "sizeAdjustPolicy", "minimumContentsLength"};

// The widgets of dialog by object name; Qt's inner widgets and names used
// twice are left out, so a name picks the same widget in either dialog.
QHash<QString, QWidget*> named(QWidget& dialog)
{
    QHash<QString, QWidget*> byName;
    QList<QWidget*> widgets = dialog.findChildren<QWidget*>();
    widgets.prepend(&dialog);
    for (QWidget* widget : widgets) {
        const QString name = widget->objectName();
        if (name.isEmpty() || name.startsWith("qt_"))
            continue;
        auto known = byName.find(name);
        if (known == byName.end())
            byName.insert(name, widget);
        else
            *known = nullptr;
    }
    return byName;
}

bool differs(const QVariant& shown, const QVariant& plain)
{
    if (shown.userType() == QMetaType::QIcon)
        return !shown.value<QIcon>().isNull() && shown.value<QIcon>().cacheKey() != plain.value<QIcon>().cacheKey();
    return shown != plain;
}

bool explicitlyHidden(const QWidget& widget)
{
    return widget.testAttribute(Qt::WA_WState_ExplicitShowHide) && widget.testAttribute(Qt::WA_WState_Hidden);
}

QListView* listViewOf(QWidget* widget)
{
    if (auto* combo = qobject_cast<QComboBox*>(widget))
        return qobject_cast<QListView*>(combo->view());
    return qobject_cast<QListView*>(widget);
}

} // namespace

void settle()
{
    QCoreApplication::processEvents();
    orrery::sdk::ui::common::IdleQueue::instance().flush();
}

PlainForm::PlainForm(Setup setup, const QDialog& shown) : m_setup(std::move(setup))
{
    QDialog plain;
    m_setup(plain);
    capture(plain, shown);
}

void PlainForm::capture(QWidget& plain, const QWidget& shown)
{
    const QHash<QString, QWidget*> shownByName = named(const_cast<QWidget&>(shown));
    const QHash<QString, QWidget*> plainByName = named(plain);
    for (auto at = plainByName.begin(); at != plainByName.end(); ++at) {
        QWidget* plainWidget = at.value();
        QWidget* shownWidget = shownByName.value(at.key());
        if (!plainWidget || !shownWidget)
            continue;
        const QMetaObject* meta = plainWidget->metaObject();
        for (const char* name : CopiedProperties) {
            const int index = meta->indexOfProperty(name);
            if (index < 0 || !meta->property(index).isWritable())
                continue;
            const QVariant value = shownWidget->property(name);
            if (value.isValid() && differs(value, plainWidget->property(name)))
                m_writes.push_back(Write{at.key(), meta->property(index), value});
        }
        if (explicitlyHidden(*shownWidget) && !explicitlyHidden(*plainWidget))
            m_hidden.push_back(at.key());
        if (shownWidget->testAttribute(Qt::WA_ForceDisabled) && !plainWidget->testAttribute(Qt::WA_ForceDisabled))
            m_disabled.push_back(at.key());
        auto* box = qobject_cast<QDialogButtonBox*>(shownWidget);
        auto* plainBox = qobject_cast<QDialogButtonBox*>(plainWidget);
        if (box && plainBox && (box->standardButtons() & ~plainBox->standardButtons()))
            m_buttons.push_back(Buttons{at.key(), box->standardButtons() & ~plainBox->standardButtons()});
        if (qobject_cast<QComboBox*>(shownWidget) || qobject_cast<QAbstractItemView*>(shownWidget))
            captureList(at.key(), *shownWidget);
    }
}

void PlainForm::captureList(const QString& object, const QWidget& shown)
{
    List list{object, {}, -1, false};
    const QAbstractItemModel* model = nullptr;
    if (auto* combo = qobject_cast<const QComboBox*>(&shown)) {
        model = combo->model();
        list.current = combo->currentIndex();
    } else if (auto* view = qobject_cast<const QAbstractItemView*>(&shown)) {
        model = view->model();
        list.current = view->currentIndex().row();
    }
    if (model)
        for (int row = 0; row < model->rowCount(); ++row)
            list.rows << model->data(model->index(row, 0), Qt::DisplayRole).toString();
    if (QListView* view = listViewOf(const_cast<QWidget*>(&shown)))
        list.uniformItemSizes = view->uniformItemSizes();
    m_lists.push_back(list);
}

QDialog* PlainForm::show(QWidget& parent) const
{
    auto* dialog = new QDialog(&parent);
    m_setup(*dialog);
    const QHash<QString, QWidget*> byName = named(*dialog);
    for (const Write& write : m_writes)
        write.property.write(byName.value(write.object), write.value);
    for (const QString& object : m_hidden)
        byName.value(object)->hide();
    for (const QString& object : m_disabled)
        byName.value(object)->setEnabled(false);
    for (const Buttons& buttons : m_buttons) {
        auto* box = static_cast<QDialogButtonBox*>(byName.value(buttons.object));
        for (uint button = QDialogButtonBox::FirstButton; button <= QDialogButtonBox::LastButton; button <<= 1)
            if (buttons.added & button)
                box->addButton(QDialogButtonBox::StandardButton(button));
    }
    for (const List& list : m_lists) {
        QWidget* widget = byName.value(list.object);
        auto* model = new QStringListModel(list.rows, widget);
        if (QListView* view = listViewOf(widget))
            view->setUniformItemSizes(list.uniformItemSizes);
        if (auto* combo = qobject_cast<QComboBox*>(widget)) {
            combo->setModel(model);
            combo->setCurrentIndex(list.current);
        } else if (auto* view = qobject_cast<QAbstractItemView*>(widget)) {
            view->setModel(model);
            if (list.current >= 0)
                view->setCurrentIndex(model->index(list.current, 0));
        }
    }
    dialog->show();
    settle();
    return dialog;
}

int PlainForm::widgetCount() const
{
    QWidget parent;
    return int(show(parent)->findChildren<QWidget*>().size());
}

} // namespace benchform
