#include "platform/ui/QScientificSpinBox.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <QLineEdit>
#include <QLocale>
#include <QRegularExpression>

namespace orrery::ui {

QScientificSpinBox::QScientificSpinBox(QWidget* parent)
    : QAbstractSpinBox(parent), m_minimum(-std::numeric_limits<double>::max()),
      m_maximum(std::numeric_limits<double>::max())
{
    connect(this, &QAbstractSpinBox::editingFinished, this, &QScientificSpinBox::interpretText);
    // With keyboard tracking every number typed counts at once; the text is left
    // as typed until editing ends.
    connect(lineEdit(), &QLineEdit::textEdited, this, [this](const QString& text) {
        double typed = m_value;
        if (keyboardTracking() && valueFromText(text, typed) && assign(typed))
            Q_EMIT valueChanged(m_value);
    });
    showValue();
}

void QScientificSpinBox::setDecimals(int significantDigits)
{
    m_decimals = std::max(1, std::min(significantDigits, 17));
    showValue();
}

void QScientificSpinBox::setMinimum(double minimum)
{
    setRange(minimum, std::max(minimum, m_maximum));
}

void QScientificSpinBox::setMaximum(double maximum)
{
    setRange(std::min(m_minimum, maximum), maximum);
}

void QScientificSpinBox::setRange(double minimum, double maximum)
{
    m_minimum = minimum;
    m_maximum = std::max(minimum, maximum);
    setValue(m_value);
}

void QScientificSpinBox::setValue(double value)
{
    const bool changed = assign(value);
    showValue();
    if (changed)
        Q_EMIT valueChanged(m_value);
}

bool QScientificSpinBox::assign(double value)
{
    const double bounded = std::isnan(value) ? value : std::max(m_minimum, std::min(value, m_maximum));
    const bool changed = !(bounded == m_value);
    m_value = bounded;
    return changed;
}

QString QScientificSpinBox::textFromValue(double value) const
{
    return QLocale::c().toString(value, 'g', m_decimals);
}

bool QScientificSpinBox::valueFromText(const QString& text, double& value) const
{
    bool ok = false;
    const double parsed = QLocale::c().toDouble(text.trimmed(), &ok);
    if (ok)
        value = parsed;
    return ok;
}

void QScientificSpinBox::stepBy(int steps)
{
    interpretText();
    const double move = m_stepCalculator ? m_stepCalculator(steps) : steps * m_singleStep;
    setValue(m_value + move);
    selectAll();
}

QValidator::State QScientificSpinBox::validate(QString& input, int&) const
{
    double value = 0.0;
    if (valueFromText(input, value))
        return value >= m_minimum && value <= m_maximum ? QValidator::Acceptable : QValidator::Intermediate;
    // A number on its way: "-", "1.", "2e", "2e-".
    static const QRegularExpression partial(QStringLiteral("^\\s*[+-]?(\\d*\\.?\\d*)([eE][+-]?\\d*)?\\s*$"));
    return partial.match(input).hasMatch() ? QValidator::Intermediate : QValidator::Invalid;
}

void QScientificSpinBox::fixup(QString& input) const
{
    input = textFromValue(m_value);
}

QAbstractSpinBox::StepEnabled QScientificSpinBox::stepEnabled() const
{
    if (isReadOnly())
        return StepNone;
    StepEnabled enabled = StepNone;
    if (m_value < m_maximum)
        enabled |= StepUpEnabled;
    if (m_value > m_minimum)
        enabled |= StepDownEnabled;
    return enabled;
}

// Takes the typed text as the value; text that is no number shows the value again.
void QScientificSpinBox::interpretText()
{
    double typed = m_value;
    if (valueFromText(lineEdit()->text(), typed))
        setValue(typed);
    else
        showValue();
}

void QScientificSpinBox::showValue()
{
    const QString text = textFromValue(m_value);
    if (lineEdit()->text() != text)
        lineEdit()->setText(text);
}

} // namespace orrery::ui
