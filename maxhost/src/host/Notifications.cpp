#include "maxhost/src/host/Notifications.h"

#include <algorithm>

namespace maxhost {

Notifications& Notifications::instance() {
    // Lives as long as the process: libraries may still take their handlers out while it ends.
    static Notifications* const notifications = new Notifications;
    return *notifications;
}

void Notifications::add(NOTIFYPROC proc, void* param, int code) {
    byCode_[code].handlers.push_back({proc, param});
}

bool Notifications::removeFrom(Listeners& listeners, NOTIFYPROC proc, void* param) {
    for (Handler& handler : listeners.handlers) {
        if (handler.proc != proc || handler.param != param) continue;
        handler.proc = nullptr;
        listeners.hasGaps = true;
        closeGaps(listeners);
        return true;
    }
    return false;
}

bool Notifications::remove(NOTIFYPROC proc, void* param, int code) {
    const auto listeners = byCode_.find(code);
    return proc != nullptr && listeners != byCode_.end() && removeFrom(listeners->second, proc, param);
}

bool Notifications::removeAll(NOTIFYPROC proc, void* param) {
    if (proc == nullptr) return false;
    bool removed = false;
    for (auto& entry : byCode_)
        while (removeFrom(entry.second, proc, param))
            removed = true;
    return removed;
}

void Notifications::broadcast(int code, void* callParam) {
    const auto found = byCode_.find(code);
    if (found == byCode_.end()) return;
    Listeners& listeners = found->second;  // map entries stay where they are
    NotifyInfo info{code, callParam};
    ++listeners.broadcasting;
    const size_t present = listeners.handlers.size();
    for (size_t i = 0; i < present && i < listeners.handlers.size(); ++i) {
        const Handler handler = listeners.handlers[i];  // a copy: the list may grow meanwhile
        if (handler.proc != nullptr) handler.proc(handler.param, &info);
    }
    --listeners.broadcasting;
    closeGaps(listeners);
}

void Notifications::closeGaps(Listeners& listeners) {
    if (listeners.broadcasting > 0 || !listeners.hasGaps) return;
    auto& handlers = listeners.handlers;
    handlers.erase(std::remove_if(handlers.begin(), handlers.end(),
                                  [](const Handler& handler) { return handler.proc == nullptr; }),
                   handlers.end());
    listeners.hasGaps = false;
}

void Notifications::clear() {
    for (auto& entry : byCode_) {
        for (Handler& handler : entry.second.handlers)
            handler.proc = nullptr;
        entry.second.hasGaps = true;
        closeGaps(entry.second);
    }
}

size_t Notifications::count() const {
    size_t count = 0;
    for (const auto& entry : byCode_)
        count += static_cast<size_t>(
            std::count_if(entry.second.handlers.begin(), entry.second.handlers.end(),
                          [](const Handler& handler) { return handler.proc != nullptr; }));
    return count;
}

}  // namespace maxhost

using maxhost::Notifications;

int RegisterNotification(NOTIFYPROC proc, void* param, int code) {
    if (proc == nullptr) return 0;
    Notifications::instance().add(proc, param, code);
    return 1;
}

int UnRegisterNotification(NOTIFYPROC proc, void* param, int code) {
    return Notifications::instance().remove(proc, param, code) ? 1 : 0;
}

int UnRegisterNotification(NOTIFYPROC proc, void* param) {
    return Notifications::instance().removeAll(proc, param) ? 1 : 0;
}

void BroadcastNotification(int code) {
    Notifications::instance().broadcast(code, nullptr);
}

void BroadcastNotification(int code, void* callParam) {
    Notifications::instance().broadcast(code, callParam);
}
