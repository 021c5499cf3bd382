#include "demo/common/Mnemonics.h"

#include <QAction>
#include <QMenu>
#include <vector>
#include <QHash>
#include <QSet>

QChar Mnemonics::of(const QString& text)
{
    for (int i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != '&')
            continue;
        if (text[i + 1] != '&')
            return text[i + 1].toLower();
        ++i; // "&&" is an ampersand
    }
    return QChar();
}

QString Mnemonics::escaped(const QString& name)
{
    return QString(name).replace('&', "&&");
}

namespace {

struct Candidate
{
    QChar key;
    int at;
};

// The letters and digits of a text that may become its key: those that start
// a word first, then the others.
std::vector<Candidate> candidatesIn(const QString& text, const QSet<QChar>& taken)
{
    std::vector<Candidate> candidates;
    QSet<QChar> seen;
    for (const bool wordStarts : {true, false})
        for (int i = 0; i < text.size(); ++i) {
            const QChar key = text[i].toLower();
            const bool wordStart = i == 0 || !text[i - 1].isLetterOrNumber();
            if (text[i].isLetterOrNumber() && wordStart == wordStarts && !taken.contains(key) && !seen.contains(key)) {
                seen.insert(key);
                candidates.push_back({key, i});
            }
        }
    return candidates;
}

// Gives entry a key, moving others to other keys of theirs where that frees one.
bool place(size_t entry, const std::vector<std::vector<Candidate>>& candidates, QHash<QChar, size_t>& owner,
           QSet<QChar>& tried)
{
    for (const Candidate& candidate : candidates[entry]) {
        if (tried.contains(candidate.key))
            continue;
        tried.insert(candidate.key);
        if (!owner.contains(candidate.key) || place(owner.value(candidate.key), candidates, owner, tried)) {
            owner.insert(candidate.key, entry);
            return true;
        }
    }
    return false;
}

} // namespace

void Mnemonics::assign(QMenu& menu)
{
    QSet<QChar> taken;
    for (const QAction* action : menu.actions())
        if (!of(action->text()).isNull())
            taken.insert(of(action->text()));
    std::vector<QAction*> open;
    std::vector<std::vector<Candidate>> candidates;
    for (QAction* action : menu.actions())
        if (!action->isSeparator() && !action->text().isEmpty() && of(action->text()).isNull()) {
            open.push_back(action);
            candidates.push_back(candidatesIn(action->text(), taken));
        }
    // As many entries as possible get a key, each its most preferred one left.
    QHash<QChar, size_t> owner;
    for (size_t entry = 0; entry < open.size(); ++entry) {
        QSet<QChar> tried;
        place(entry, candidates, owner, tried);
    }
    for (auto it = owner.cbegin(); it != owner.cend(); ++it) {
        const size_t entry = it.value();
        for (const Candidate& candidate : candidates[entry])
            if (candidate.key == it.key()) {
                open[entry]->setText(QString(open[entry]->text()).insert(candidate.at, '&'));
                break;
            }
    }
}
