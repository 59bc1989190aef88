#include "maxhost/win32/Win32Session.h"

#include <fstream>
#include <stdexcept>

#include "maxhost/win32/RegistryFile.h"
#include "maxhost/win32/RegistryStore.h"
#include "maxhost/win32/SessionState.h"
#include "maxhost/win32/WindowTable.h"

namespace maxhost::win32 {

SessionState& SessionState::instance() {
    static SessionState& state = *new SessionState;
    return state;
}

void Win32Session::loadRegistryFile(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    if (!stream) throw std::runtime_error(path + ": cannot be opened");
    readRegistryFile(stream, path, RegistryStore::instance());
}

void Win32Session::setRegistryValue(const std::string& key, const std::string& name,
                                    const std::string& text) {
    RegistryStore::instance().set(key, name, RegistryValue{REG_SZ, text + '\0'});
}

void Win32Session::clearRegistry() {
    RegistryStore::instance().clear();
}

const std::vector<ShownMessageBox>& Win32Session::messageBoxes() {
    return SessionState::instance().messageBoxes;
}

void Win32Session::answerNextMessageBox(int button) {
    SessionState::instance().answers.push_back(button);
}

void Win32Session::printMessageBoxesTo(std::ostream* stream) {
    SessionState::instance().printTo = stream;
}

void Win32Session::setTickCount(DWORD milliseconds) {
    SessionState::instance().tickCount = milliseconds;
}

std::size_t Win32Session::windowCount() {
    return WindowTable::instance().count();
}

void Win32Session::reset() {
    SessionState::instance() = SessionState();
    clearRegistry();
    WindowTable::instance().dropAll();
    SetDllDirectoryA(nullptr);
}

}  // namespace maxhost::win32
