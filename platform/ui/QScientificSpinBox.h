#pragma once
#include "platform/PlatformExport.h"
#include <functional>
#include <QAbstractSpinBox>

namespace orrery::ui {

// A spin box for doubles of any magnitude: it accepts and shows scientific
// notation (1.5e-07) and never rounds the value to a fixed number of decimal
// places; "decimals" is the number of significant digits shown. Text is read
// and written in the classic locale, as the kernel's numbers are.
class ORRERY_PLATFORM_EXPORT QScientificSpinBox : public QAbstractSpinBox
{
    Q_OBJECT
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged USER true)
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)
    Q_PROPERTY(double minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(double maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(double singleStep READ singleStep WRITE setSingleStep)
public:
    // Size of a move of the given number of steps (negative: downwards).
    typedef std::function<double(int steps)> StepCalculator;

    explicit QScientificSpinBox(QWidget* parent = nullptr);

    double value() const { return m_value; }
    int decimals() const { return m_decimals; }
    void setDecimals(int significantDigits);
    double minimum() const { return m_minimum; }
    double maximum() const { return m_maximum; }
    void setMinimum(double minimum);
    void setMaximum(double maximum);
    void setRange(double minimum, double maximum);
    double singleStep() const { return m_singleStep; }
    void setSingleStep(double step) { m_singleStep = step; }
    // Replaces the fixed single step; an empty calculator restores it.
    void setStepCalculator(const StepCalculator& calculator) { m_stepCalculator = calculator; }

    QString textFromValue(double value) const;
    // False when the text is no number.
    bool valueFromText(const QString& text, double& value) const;

    void stepBy(int steps) override;
    QValidator::State validate(QString& input, int& position) const override;
    void fixup(QString& input) const override;

public Q_SLOTS:
    void setValue(double value);

Q_SIGNALS:
    void valueChanged(double value);

protected:
    StepEnabled stepEnabled() const override;

private:
    bool assign(double value);
    void interpretText();
    void showValue();

    double m_value = 0.0;
    double m_minimum;
    double m_maximum;
    double m_singleStep = 1.0;
    int m_decimals = 6;
    StepCalculator m_stepCalculator;
};

} // namespace orrery::ui
