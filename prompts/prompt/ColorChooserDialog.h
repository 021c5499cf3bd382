#pragma once
#include "prompts/PromptsExport.h"
#include <memory>
#include <set>
#include <string>
#include <QString>
#include "framework/QtDialogAbstract.h"
#include "framework/SingleInstanceDialog.h"

class Ui_ColorChooser;

namespace orrery {
class SignalConnectionCollection;

namespace dialogs {
namespace prompt {

/// Picks a plot colour with one click: a colour of the grid, one of the eight
/// multi colourings (colour by variable) or RGB colouring. Close leaves the
/// previous answer in place, so callers look at result() first.
class ORRERY_PROMPTS_EXPORT ColorChooserDialog : public common::QtDialogAbstract,
                                                 public virtual common::DialogInterface,
                                                 public SingleInstanceDialog<ColorChooserDialog>
{
    Q_OBJECT
public:
    /// Every call, later ones too, moves the live dialog to the new parent and
    /// enables or disables colouring by variable as asked (see SingleInstanceDialog).
    static ColorChooserDialog* getInstance(QWidget& parent, bool enableVarColoring);

    /// The colour's name; shortForm abbreviates custom colours ("Cust 1" for
    /// "CUSTOM1"). Indices that name no colour give an empty string.
    static std::string colorToString(int colorIndex, bool shortForm);
    /// colorToString in the user's language, for the screen; the long form of a
    /// custom colour reads "Custom color 3" rather than "CUSTOM3".
    static QString colorDisplayName(int colorIndex, bool shortForm);

    /// Where the icon of the multi colourings lives among the resources.
    static const QString& multiColorIconPath();

    /// Builds the dialog directly, over \a parent; a host uses getInstance().
    explicit ColorChooserDialog(QWidget& parent);
    ~ColorChooserDialog() override;

    /// Enables or disables the multi colourings and RGB together.
    void setEnableVarColoring(bool enable);
    /// Stores the colour as the answer and ends the dialog.
    void colorSelected(int colorIndex);
    /// The colour index chosen last: a colour map index, or negative for colouring by
    /// variable (the multi colourings, RGB).
    int selectedColor() const { return m_selectedColor; }

protected:
    /// The layout's texts and the tool tips in the user's language again.
    void retranslate() override;
    /// Starts watching the keys pressed while the chooser is shown.
    void showEvent(QShowEvent* event) override;
    /// Stops watching keys.
    void hideEvent(QHideEvent* event) override;
    /// Lets a key's release reach the chooser only when its press did: the release
    /// of the key that opened the chooser from a button must not choose in it.
    bool eventFilter(QObject* watched, QEvent* event) override;

private Q_SLOTS:
    /// Connected by object name: the multi colourings 1 to 8, and RGB.
    void on_C1_clicked(bool) { multiColoringSelected(1); }
    void on_C2_clicked(bool) { multiColoringSelected(2); }
    void on_C3_clicked(bool) { multiColoringSelected(3); }
    void on_C4_clicked(bool) { multiColoringSelected(4); }
    void on_C5_clicked(bool) { multiColoringSelected(5); }
    void on_C6_clicked(bool) { multiColoringSelected(6); }
    void on_C7_clicked(bool) { multiColoringSelected(7); }
    void on_C8_clicked(bool) { multiColoringSelected(8); }
    void on_RGB_clicked(bool);

private:
    void multiColoringSelected(int number);

    std::unique_ptr<Ui_ColorChooser> m_ui;
    int m_selectedColor;
    std::set<int> m_keysPressedHere;
    std::unique_ptr<SignalConnectionCollection> m_connections;
};

/// Asks the user for the RGB channel variables in a dialog over parent; true
/// when they were chosen.
ORRERY_PROMPTS_EXPORT bool askForRGBChannelVariables(QWidget& parent);

} // namespace prompt
} // namespace dialogs
} // namespace orrery
