#include "prompts/prompt/EnterThreeIntValuesDialog.h"

#include <algorithm>
#include <boost/ptr_container/ptr_vector.hpp>
#include "framework/LaunchHelpAction.h"
#include "framework/SpinBoxLgIndexPropertyBinding.h"
#include "prompts/prompt/EnterThreeIntValuesPropertiesManager.h"
#include "ui_EnterThreeIntValues.h"

namespace orrery {
namespace dialogs {
namespace prompt {

namespace pb = sdk::ui::dialogs::propertybindings;

struct EnterThreeIntValuesDialog::Impl
{
    Impl(QDialog& dialog, const std::string& title, long value1, long value2, long value3,
         const std::string (&labels)[3], const long (&minimums)[3])
        : manager(value1, value2, value3), title(QString::fromUtf8(title.c_str()))
    {
        ui.setupUi(&dialog);
        for (int i = 0; i < 3; ++i)
            captions[i] = QString::fromUtf8(labels[i].c_str());
        showTexts(dialog);
        QSpinBox* const spinBoxes[] = {ui.value1, ui.value2, ui.value3};
        const boost::shared_ptr<PropertyAbstract<long>> properties[] = {manager.value1(), manager.value2(),
                                                                        manager.value3()};
        for (int i = 0; i < 3; ++i) {
            spinBoxes[i]->setMaximum(Limit);
            spinBoxes[i]->setMinimum(minimums[i] > 0 ? int(std::min<long>(minimums[i], Limit)) : -Limit);
            bindings.push_back(new pb::SpinBoxLgIndexPropertyBinding(*spinBoxes[i], properties[i]));
        }
    }

    // The caller's title and captions, over the layout's.
    void showTexts(QDialog& dialog)
    {
        dialog.setWindowTitle(title);
        QLabel* const labels[] = {ui.valueLabel1, ui.valueLabel2, ui.valueLabel3};
        for (int i = 0; i < 3; ++i)
            labels[i]->setText(captions[i]);
    }

    static const int Limit = 2147483646;

    Ui_EnterThreeIntValues ui;
    EnterThreeIntValuesPropertiesManager manager;
    boost::ptr_vector<pb::BindingInterface> bindings;
    QString title;
    QString captions[3];
};

EnterThreeIntValuesDialog* EnterThreeIntValuesDialog::getInstance(QWidget& parent, long value1, long value2,
                                                                  long value3, std::string const& title,
                                                                  std::string const& helpPage, std::string label1,
                                                                  std::string label2, std::string label3, long minimum1,
                                                                  long minimum2, long minimum3)
{
    return obtain(parent, title, helpPage, value1, value2, value3, label1, label2, label3, minimum1, minimum2,
                  minimum3);
}

EnterThreeIntValuesDialog::EnterThreeIntValuesDialog(QWidget& parent, std::string const& title,
                                                     std::string const& helpPage, long value1, long value2, long value3,
                                                     std::string label1, std::string label2, std::string label3,
                                                     long minimum1, long minimum2, long minimum3)
    : QtDialogAbstract(parent, relevance()),
      m_impl(new Impl(*this, title, value1, value2, value3, {label1, label2, label3}, {minimum1, minimum2, minimum3}))
{
    // A caller without a page of its own still gets one that explains the fields.
    setHelpAction(new common::LaunchHelpAction(helpPage.empty() ? "enter_three_integers.html" : helpPage, *this));
}

void EnterThreeIntValuesDialog::retranslate()
{
    m_impl->ui.retranslateUi(this);
    m_impl->showTexts(*this);
}

EnterThreeIntValuesDialog::~EnterThreeIntValuesDialog() = default;

long EnterThreeIntValuesDialog::value1() const
{
    return m_impl->manager.value1()->getValue();
}

long EnterThreeIntValuesDialog::value2() const
{
    return m_impl->manager.value2()->getValue();
}

long EnterThreeIntValuesDialog::value3() const
{
    return m_impl->manager.value3()->getValue();
}

boost::shared_ptr<const sdk::ui::propertymanager::RelevanceInterface> EnterThreeIntValuesDialog::relevance()
{
    return EnterThreeIntValuesPropertiesManager::relevance();
}

} // namespace prompt
} // namespace dialogs
} // namespace orrery
