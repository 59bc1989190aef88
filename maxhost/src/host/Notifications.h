#pragma once

#include <max.h>
#include <notify.h>

#include <cstddef>
#include <map>
#include <vector>

namespace maxhost {

/// Who hears of which event. Handlers run in order of registration. During a broadcast handlers may come and
/// go: one that is taken out is not called any more, one that is added is called from the next broadcast on.
class Notifications {
  public:
    static Notifications& instance();

    void add(NOTIFYPROC proc, void* param, int code);
    /// False when there is no such registration.
    bool remove(NOTIFYPROC proc, void* param, int code);
    bool removeAll(NOTIFYPROC proc, void* param);
    void broadcast(int code, void* callParam);
    /// Forgets every handler.
    void clear();
    size_t count() const;

  private:
    struct Handler {
        NOTIFYPROC proc;  ///< null once it was taken out during a broadcast
        void* param;
    };
    struct Listeners {
        std::vector<Handler> handlers;
        int broadcasting = 0;
        bool hasGaps = false;
    };

    static bool removeFrom(Listeners& listeners, NOTIFYPROC proc, void* param);
    static void closeGaps(Listeners& listeners);

    std::map<int, Listeners> byCode_;
};

}  // namespace maxhost
