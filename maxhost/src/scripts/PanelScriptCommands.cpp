#include "maxhost/src/scripts/PanelScriptCommands.h"

#include "maxhost/src/undo/UndoRecorder.h"

namespace maxhost {

PanelScriptCommands::PanelScriptCommands(CommandPanel& commandPanel, const ClassDirectory& directory)
    : panel(commandPanel), classes(directory) {}

int PanelScriptCommands::taskMode() {
    return panel.taskMode();
}

void PanelScriptCommands::setTaskMode(int mode) {
    panel.setTaskMode(mode);
}

std::vector<std::string> PanelScriptCommands::utilityNames() {
    std::vector<std::string> names;
    for (ClassDesc* const utility : classes.ofSuperClass(UTILITY_CLASS_ID))
        names.push_back(utility->ClassName());
    return names;
}

bool PanelScriptCommands::openUtility(const std::string& className) {
    for (ClassDesc* const utility : classes.ofSuperClass(UTILITY_CLASS_ID)) {
        if (className == utility->ClassName()) return panel.openUtility(*utility);
    }
    return false;
}

void PanelScriptCommands::undo() {
    UndoRecorder::instance().undo();
}

void PanelScriptCommands::redo() {
    UndoRecorder::instance().redo();
}

}  // namespace maxhost
