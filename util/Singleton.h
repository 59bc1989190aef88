#pragma once

#include "util/SingletonReference.h"

namespace qvo::util {

/// Base of a class with one process-wide instance, made on first request and destroyed by the
/// SingletonCollector. One instance per module (plug-in, core), main thread only, no lock.
///
/// Other objects of `T` may exist beside the instance (a `Log` on the stack): their end leaves the
/// instance and its registration alone.
///
/// `T` derives from Singleton<T> and lets it construct and delete (`friend class Singleton<T>`).
template <class T>
class Singleton : public SingletonReference {
  public:
    /// The instance; the first request, also the first after a release, makes and registers it.
    /// During the instance's own destruction this still answers with the dying instance.
    static T& instance() {
        if (!instance_) {
            instance_ = new T();  // owned by itself until release()
            destroyed_ = false;
            try {
                enlist(*instance_);
            } catch (...) {
                instance_->release();  // what the collector does not know, nobody would destroy
                throw;
            }
        }
        return *instance_;
    }

    /// The instance if there is one, else null; never makes one.
    static T* existing() { return instance_; }

    /// Deletes the instance unless that is under way already, and forgets it. A later instance() makes a
    /// fresh one.
    void release() override {  // slot 0
        if (instance_ && !destroyed_) {
            destroyed_ = true;
            delete instance_;  // `this` is gone from here on when it was the instance
        }
        instance_ = nullptr;
    }

    ~Singleton() override {  // slot 1
        // The pointer first: a dying collector must not be found, and asked to withdraw itself, any more.
        if (static_cast<Singleton*>(instance_) == this) instance_ = nullptr;
        withdraw(*this);
    }

  protected:
    Singleton() = default;

  private:
    static inline T* instance_ = nullptr;
    static inline bool destroyed_ = false;
};

}  // namespace qvo::util
