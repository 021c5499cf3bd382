#include "framework/QtDialogAbstract.h"

#include <QAbstractButton>
#include <QAction>
#include <QDialogButtonBox>
#include <QEvent>
#include <QKeySequence>
#include <QMetaMethod>
#include <QPushButton>
#include <memory>
#include <vector>
#include <QPointer>
#include <boost/signals2/connection.hpp>
#include "core/propertymanager/RelevanceInterface.h"
#include "framework/HelpViewer.h"
#include "platform/common/HostCall.h"

namespace orrery {
namespace dialogs {
namespace common {

namespace {
// Marks a button box whose buttons this frame has already wired.
const char* const WiredMarker = "orreryFrameWired";

// QObject::isSignalConnected is protected; a pointer to it taken through a
// derived class may be applied to any object.
struct SignalProbe : QObject
{
    using QObject::isSignalConnected;
};

template <typename Signal>
bool isConnected(const QDialogButtonBox& box, Signal signal)
{
    return (box.*&SignalProbe::isSignalConnected)(QMetaMethod::fromSignal(signal));
}
} // namespace

struct QtDialogAbstract::Impl
{
    explicit Impl(RelevancePtr relevance) : relevance(std::move(relevance)) {}

    RelevancePtr relevance;
    boost::signals2::scoped_connection relevanceConnection;
    QAction* helpAction = nullptr;
    // The widgets this frame disabled for want of relevance; only these are
    // enabled again, so a widget disabled for its own reasons stays disabled.
    std::vector<QPointer<QWidget>> heldDisabled;
    bool holdingDisabled = false;
    // Dropped: it only waits for its destruction.
    bool dropped = false;
    bool retranslationDue = false;
};

QtDialogAbstract::QtDialogAbstract(QWidget& parent, RelevancePtr relevance)
    : QDialog(&parent), m_impl(new Impl(std::move(relevance)))
{
    if (m_impl->relevance)
        m_impl->relevanceConnection = m_impl->relevance->connectToRelevanceChangedSignal([this] { applyRelevance(); });
}

QtDialogAbstract::~QtDialogAbstract() = default;

bool QtDialogAbstract::isRelevant() const
{
    return !m_impl->relevance || m_impl->relevance->isRelevant();
}

void QtDialogAbstract::launch()
{
    if (!isRelevant()) {
        setResult(Rejected);
        return;
    }
    applyRelevance();
    if (isModal())
        exec();
    else {
        show();
        raise();
        activateWindow();
    }
}

void QtDialogAbstract::drop()
{
    m_impl->dropped = true;
    if (isVisible())
        reject();
    deleteLater();
}

bool QtDialogAbstract::isDropped() const
{
    return m_impl->dropped;
}

void QtDialogAbstract::openWith(std::function<void(int result)> whenFinished)
{
    const auto tell = [whenFinished](int result) {
        if (whenFinished)
            HostCall::run("whenFinished (given to QtDialogAbstract::openWith)", [&] { whenFinished(result); });
    };
    if (!isRelevant()) {
        setResult(Rejected);
        tell(Rejected);
        return;
    }
    // Disconnected by its first call, so that a later run of this dialog does not call it again.
    auto connection = std::make_shared<QMetaObject::Connection>();
    *connection = connect(this, &QDialog::finished, this, [connection, tell](int result) {
        QObject::disconnect(*connection);
        tell(result);
    });
    applyRelevance();
    if (isModal())
        open();
    else {
        show();
        raise();
        activateWindow();
    }
}

QAction* QtDialogAbstract::helpAction() const
{
    return m_impl->helpAction;
}

void QtDialogAbstract::setHelpAction(QAction* action)
{
    if (m_impl->helpAction == action)
        return;
    delete m_impl->helpAction;
    m_impl->helpAction = action;
    if (!action)
        return;
    action->setParent(this);
    action->setShortcut(QKeySequence::HelpContents);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    addAction(action);
    if (isVisible())
        wireButtonBoxes();
}

void QtDialogAbstract::done(int result)
{
    if (HelpViewer* help = HelpViewer::of(*this))
        help->close();
    QDialog::done(result == Accepted && !isRelevant() ? int(Rejected) : result);
}

void QtDialogAbstract::showEvent(QShowEvent* event)
{
    // The layouts are built after this base, so their button boxes are only
    // known once the dialog is about to appear.
    wireButtonBoxes();
    applyRelevance();
    QDialog::showEvent(event);
}

void QtDialogAbstract::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() != QEvent::LanguageChange || m_impl->retranslationDue)
        return;
    m_impl->retranslationDue = true;
    // Later, once the children have the event too: a button box puts its standard
    // texts back when it gets it, over a caption the dialog set.
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_impl->retranslationDue = false;
            retranslate();
            update();
        },
        Qt::QueuedConnection);
}

void QtDialogAbstract::retranslate() {}

void QtDialogAbstract::applyRelevance()
{
    const bool relevant = isRelevant();
    if (relevant) {
        if (!m_impl->holdingDisabled)
            return;
        m_impl->holdingDisabled = false;
        for (const QPointer<QWidget>& widget : m_impl->heldDisabled)
            if (widget)
                widget->setEnabled(true);
        m_impl->heldDisabled.clear();
        return;
    }
    if (m_impl->holdingDisabled)
        return;
    m_impl->holdingDisabled = true;
    const auto hold = [this](QWidget* widget) {
        // Qt keeps an explicit disable apart from one inherited from a parent.
        if (widget->testAttribute(Qt::WA_ForceDisabled))
            return;
        widget->setEnabled(false);
        m_impl->heldDisabled.emplace_back(widget);
    };
    // Disabling the dialog itself would take Cancel and Escape with it.
    for (QWidget* child : findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (child->isWindow())
            continue;
        auto* box = qobject_cast<QDialogButtonBox*>(child);
        if (!box) {
            hold(child);
            continue;
        }
        for (QAbstractButton* button : box->buttons()) {
            const QDialogButtonBox::ButtonRole role = box->buttonRole(button);
            if (role == QDialogButtonBox::AcceptRole || role == QDialogButtonBox::YesRole
                || role == QDialogButtonBox::ApplyRole)
                hold(button);
        }
    }
}

void QtDialogAbstract::wireButtonBoxes()
{
    for (QDialogButtonBox* box : findChildren<QDialogButtonBox*>()) {
        if (!box->property(WiredMarker).toBool()) {
            box->setProperty(WiredMarker, true);
            // A layout that connected its buttons itself keeps its own wiring.
            if (!isConnected(*box, &QDialogButtonBox::accepted))
                connect(box, &QDialogButtonBox::accepted, this, &QDialog::accept);
            if (!isConnected(*box, &QDialogButtonBox::rejected))
                connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
            // The action may be replaced later (some dialogs change page by state).
            connect(box, &QDialogButtonBox::helpRequested, this, [this] {
                if (m_impl->helpAction)
                    m_impl->helpAction->trigger();
            });
        }
        if (m_impl->helpAction && !box->button(QDialogButtonBox::Help))
            box->addButton(QDialogButtonBox::Help);
    }
}

} // namespace common
} // namespace dialogs
} // namespace orrery
