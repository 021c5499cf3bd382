#pragma once
#include <QMainWindow>
#include "demo/DialogCatalog.h"

class QPlainTextEdit;
class StateView;

// The demo host: a data set, a menu of every dialog, the host's state beside
// them, and the answers of each dialog after it closes.
class MainWindow : public QMainWindow
{
    Q_OBJECT
public:
    MainWindow();

    // Reads a file through a loader, asking the user to choose one when the
    // extension does not name exactly one. False, with a message, on failure.
    bool loadFile(const QString& path);
    // Opens the dialog and runs it; returns the line that reports its answers.
    QString runDialog(const DialogCatalog::Entry& entry,
                      const std::function<void(DialogCatalog::Dialog&)>& whileOpen = nullptr);
    void report(const QString& line);

private:
    void openFile();
    void loadSample();

    QPlainTextEdit* m_answers;
    StateView* m_state;
};
