#include "platform/qwidgetobservable/QTextFieldObservable.h"

#include <exception>
#include <QKeyEvent>
#include <QtGlobal>

namespace qwidgetobservable {

QTextFieldObservable::QTextFieldObservable(QLineEdit& field, const std::function<bool()>& commit)
    : m_field(&field), m_commit(commit)
{
    connect(&field, &QLineEdit::textEdited, this, [this] { m_edited = true; });
    field.installEventFilter(this);
}

QTextFieldObservable::~QTextFieldObservable()
{
    if (m_field)
        m_field->removeEventFilter(this);
}

bool QTextFieldObservable::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_field)
        return false;
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter)
            return !commit();
    } else if (event->type() == QEvent::FocusOut && m_edited) {
        commit();
    }
    return false;
}

bool QTextFieldObservable::commit()
{
    // A message box shown during the commit takes the focus; that is no new commit.
    if (m_committing)
        return true;
    m_committing = true;
    m_edited = false;
    bool accepted = false;
    try {
        accepted = m_commit();
    } catch (const std::exception& e) {
        // Nothing may escape into Qt's event dispatch; the text counts as refused.
        qWarning("text field commit failed: %s", e.what());
    }
    m_committing = false;
    return accepted;
}

} // namespace qwidgetobservable
