#include <object.h>

TCHAR* BaseObject::GetObjectName() {
    // The caller gets a buffer, as from the real host; it holds until the next call.
    static TSTR name;
    GetClassName(name);
    return name.data();
}
