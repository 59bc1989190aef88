#pragma once

#include <notify.h>

#include "apps/headless/Options.h"
#include "apps/headless/OutputFolder.h"
#include "apps/headless/Playback.h"
#include "apps/headless/SessionLog.h"
#include "apps/headless/Stages.h"
#include "apps/headless/Summary.h"
#include "maxhost/HeadlessHost.h"

namespace headless {

/// One session with the host, as a person would have it: start it with its plug-ins, press the start button,
/// watch what moves, undo and redo, save, reset, open again, watch again. Leaves scene.zms, positions.csv,
/// viewport.png, curves.svg, summary.json and log.txt in the folder of the results, all of them or none.
class Session {
  public:
    explicit Session(const Options& options);

    /// Throws ClipError when the core refuses the clip, and std::runtime_error for every other failure, a
    /// scene that plays back differently included. To be called once.
    void run();

    const Summary& summary() const { return summary_; }

  private:
    void startHost();
    /// Merged nodes are no part of what undo takes away.
    static void onMerged(void* session, NotifyInfo* info);
    void pressStart();
    std::string takeReport() const;
    Playback watch();
    void undoAndRedo(const Playback& before);
    /// The motion of the reopened scene.
    Playback saveAndReopen(const Playback& before);
    /// The plug-in speaks up when something is wrong, such as nodes that the core does not take back.
    void refuseMessages() const;
    /// The reopened scene must give the bytes of the file `scene`.
    void saveAgain(const std::string& scene);
    void writeResults(const Playback& playback);
    void describeScene(const Playback& playback);
    void endHost();
    /// Logs `what`; throws what the host says unless `done`.
    void require(bool done, const std::string& what);

    const Options options_;
    OutputFolder out_;
    Stages stages_;
    SessionLog log_;
    Summary summary_;
    maxhost::HeadlessHost host_;
    std::size_t undoableFrom_ = 0;  ///< nodes that undo leaves: those at the start and those merged
};

}  // namespace headless
