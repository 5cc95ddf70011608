#pragma once

#include "numbers/code_page.h"
#include "numbers/random_source.h"
#include "platform/child_window.h"
#include "platform/platform.h"
#include "session/command_table.h"
#include "session/documents.h"
#include "session/forms.h"
#include "session/main_window.h"
#include "session/version.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <typeindex>
#include <vector>

namespace dorvan {

// The one state of a run: the tables through which documents pass, the values that more than one room shares,
// and the registry of open documents. Made once and handed by reference.
struct Session {
    explicit Session(Platform& ports) : platform(ports) {}
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    Platform& platform;
    CommandTable commands;
    MainWindow mainWindow{commands};
    Forms forms;
    RandomSource random;
    CodePage codePage; // of files
    Version version;
    char DecimalSeparator = '.';
    std::string AppPath;  // the program's folder, stored at start-up
    std::string HelpFile; // empty: no help file is set

    DocumentTables tables; // the working arrays: the document in transit

    // Analysis options.
    Array1<float> SectionLimits; // four, unset until the first diagram
    std::int16_t CurrentDiagType = 2;
    std::int16_t CurrentDistType = 1;
    std::int16_t Par_P = 0;
    std::int16_t Par_R = 0;
    std::int16_t CurrentOrderMethod = 1; // 1 none, 2 simple, 3 simple genetic, 4 Ravelin

    // Results of modal dialogs: 1 accepted, -99 cancelled (0 in the print dialogs).
    std::int16_t DialogOutcome = 0;
    std::int16_t OutputDialogOutcome = 0;

    // Text export: separators 1 semicolon, 2 comma, 3 tab.
    std::int16_t MatrixTextSeparator = 1;
    std::int16_t DataTextSeparator = 1;
    std::int16_t DataTextNames = 1;

    std::int16_t PendingRecCount = 0;
    std::int16_t PendingVarCount = 0;
    std::int16_t NewWindowIndex = 0;
    std::int16_t MaxDiagramRecords = 0;
    bool DiagramFromMatrix = false;
    std::int32_t DiagramBusy = 0; // 1 while a diagram is being made: commands only beep

    // The registry. Slot 0 is never used; within one kind all have the same upper bound; they never shrink.
    std::vector<std::shared_ptr<ChildWindow>> DataWindows;
    std::vector<WindowState> DataStates;
    std::vector<std::shared_ptr<ChildWindow>> MatrixWindows;
    std::vector<WindowState> MatrixStates;
    std::deque<DistanceMatrix> MatrixDocuments;
    std::vector<std::shared_ptr<ChildWindow>> DiagramWindows;
    std::vector<WindowState> DiagramStates;
    std::deque<DiagramDocument> DiagramDocuments;
    std::vector<std::shared_ptr<ChildWindow>> BitmapWindows;
    std::vector<WindowState> BitmapStates;

    // The child windows on the screen, the active one last (see session/children.h).
    std::vector<std::shared_ptr<ChildWindow>> Children;
    ChildWindow* ActiveWindow = nullptr; // null: the main window alone

    // Told of a window that closes, after its questions; null: nobody listens.
    std::function<void(const ChildWindow&)> onClosing;

    // The values of one room, kept with the room and known to it alone: made at their first use, and as long
    // as the session from then on.
    //
    //     session.Of<OrderingOptions>().WorkCancelled = true;
    template <class Values> Values& Of() {
        auto& held = roomValues_[typeid(Values)];
        if (!held) held = std::make_shared<Values>();
        return *static_cast<Values*>(held.get());
    }

private:
    std::map<std::type_index, std::shared_ptr<void>> roomValues_;
};

// The session's part of the start-up: caption, folder, the locale's decimal separator and code page of files,
// registry, defaults, commands off.
// The random generator is seeded from `seed` (the clock's seconds since midnight unless a seed was asked
// for).
void StartSession(Session& session, std::uint64_t seed, const std::string& programFolder);

// "Dorvan 3.3.44", the main window's caption.
std::string MainCaption(const Version& version);

} // namespace dorvan
