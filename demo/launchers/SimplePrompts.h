#pragma once
#include <QString>

class QWidget;
namespace orrery::dialogs::prompt {
class AnchorAlignmentDialog;
class ChooseLoaderDialog;
class EnterASCIICharacterDialog;
class EnterTextStringDialog;
class EnterThreeIntValuesDialog;
} // namespace orrery::dialogs::prompt

// The prompts that ask for one plain value: how the host opens each, what the
// tour does in it, and how its answer reads.
class SimplePrompts
{
public:
    typedef orrery::dialogs::prompt::EnterTextStringDialog EnterTextStringDialog;
    typedef orrery::dialogs::prompt::EnterThreeIntValuesDialog EnterThreeIntValuesDialog;
    typedef orrery::dialogs::prompt::EnterASCIICharacterDialog EnterASCIICharacterDialog;
    typedef orrery::dialogs::prompt::AnchorAlignmentDialog AnchorAlignmentDialog;
    typedef orrery::dialogs::prompt::ChooseLoaderDialog ChooseLoaderDialog;

    static EnterTextStringDialog* openTextString(QWidget& parent);
    static void driveTextString(EnterTextStringDialog& d);
    static QString textStringAnswers(EnterTextStringDialog& d);

    static EnterThreeIntValuesDialog* openThreeInts(QWidget& parent);
    static void driveThreeInts(EnterThreeIntValuesDialog& d);
    static QString threeIntsAnswers(EnterThreeIntValuesDialog& d);

    static EnterASCIICharacterDialog* openAsciiCharacter(QWidget& parent);
    static void driveAsciiCharacter(EnterASCIICharacterDialog& d);
    static QString asciiCharacterAnswers(EnterASCIICharacterDialog& d);

    static AnchorAlignmentDialog* openAnchorAlignment(QWidget& parent);
    static void driveAnchorAlignment(AnchorAlignmentDialog& d);
    static QString anchorAlignmentAnswers(AnchorAlignmentDialog& d);

    // As File > Open asks it for a ".dat" file.
    static ChooseLoaderDialog* openLoaderChooser(QWidget& parent);
    static void driveLoaderChooser(ChooseLoaderDialog& d);
    static QString loaderChooserAnswers(ChooseLoaderDialog& d);
};
