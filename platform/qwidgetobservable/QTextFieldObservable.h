#pragma once
#include "platform/PlatformExport.h"
#include <functional>
#include <QObject>
#include <QPointer>
#include <QLineEdit>

namespace qwidgetobservable {

// Reports the commits of a line edit: Return or Enter, and losing the focus
// after the user has edited the text. Unlike QLineEdit::editingFinished it also
// reports text that the field's validator finds unfinished, so that the owner
// can restore the field. The commit function is called once per commit; when
// it refuses the text (returns false), Return is kept from reaching the dialog,
// so that a refused value does not close it.
class ORRERY_PLATFORM_EXPORT QTextFieldObservable : public QObject
{
    Q_OBJECT
public:
    QTextFieldObservable(QLineEdit& field, const std::function<bool()>& commit);
    ~QTextFieldObservable() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool commit();

    QPointer<QLineEdit> m_field;
    std::function<bool()> m_commit;
    bool m_edited = false;
    bool m_committing = false;
};

} // namespace qwidgetobservable
