#pragma once

#include "session/session.h"

// Showing, activating and closing child windows. Every face goes through here, so the commands are switched
// in the same order everywhere: on a change of the active window the old one deactivates, then the new one
// activates; a closing window is asked, deactivates, unloads, and the next one activates.
namespace dorvan {

// Puts the window on the screen and makes it the active one.
void ShowChild(Session& session, ChildWindow& window);

// Told by a face when the user brings another window to the front; nothing happens for the active one.
void ActivateChild(Session& session, ChildWindow& window);

// False when the window stayed open. After the last window all commands that need a document are off.
bool CloseChild(Session& session, ChildWindow& window);

// Closes all, asking each; false at the first that stays open.
bool CloseAllChildren(Session& session);

// The question asked before a changed window closes: title the main caption, buttons Yes, No and Cancel.
Answer AskToSave(Session& session, const std::string& what, const std::string& name, MessageIcon icon);

// The size that new windows get: the normal state, 0.95 of the screen's width, 0.8 of its height, left and
// top 0.
void PlaceNewWindow(Session& session, ChildWindow& window);

} // namespace dorvan
