#pragma once

#include "maxhost/src/panel/CommandPanel.h"
#include "maxhost/src/plugins/ClassDirectory.h"
#include "maxhost/src/scripts/ScriptCommands.h"

namespace maxhost {

/// Script commands on a command panel, the registered utilities and the host's undo recorder.
class CoreExport PanelScriptCommands : public ScriptCommands {
  public:
    /// Both must outlive the commands.
    PanelScriptCommands(CommandPanel& commandPanel, const ClassDirectory& directory);

    int taskMode() override;
    void setTaskMode(int mode) override;
    std::vector<std::string> utilityNames() override;
    bool openUtility(const std::string& className) override;
    void undo() override;
    void redo() override;

  private:
    CommandPanel& panel;
    const ClassDirectory& classes;
};

}  // namespace maxhost
