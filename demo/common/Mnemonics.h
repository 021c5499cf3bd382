#pragma once
#include <QChar>
#include <QString>

class QMenu;

// The keys that pick menu entries: each entry of a menu its own.
class Mnemonics
{
public:
    // The letter or digit after a single '&', lower-case; null when the text has none.
    static QChar of(const QString& text);
    // A name shown as it is, its ampersands not taken for mnemonics.
    static QString escaped(const QString& name);
    // Gives every entry of the menu without a mnemonic one no other entry has:
    // the first free letter that starts a word, else the first free letter or
    // digit. Entries keep the mnemonics they have.
    static void assign(QMenu& menu);
};
