// A plug-in library with two classes. TEST_RELEASE is the host release that it claims; TEST_PARTIAL leaves
// one of the four exports out.

#include <max.h>
#include <utilapi.h>

namespace {

class TestUtility : public UtilityObj {
  public:
    void BeginEditParams(Interface*, IUtil*) override {}
    void EndEditParams(Interface*, IUtil*) override {}
    void DeleteThis() override { delete this; }
};

class TestClassDesc : public ClassDesc {
  public:
    TestClassDesc(const TCHAR* className, ULONG idPart) : name(className), part(idPart) {}

    int IsPublic() override { return 1; }
    void* Create(BOOL loading) override {
        return loading != FALSE ? nullptr : static_cast<UtilityObj*>(new TestUtility);
    }
    const TCHAR* ClassName() override { return name; }
    SClass_ID SuperClassID() override { return UTILITY_CLASS_ID; }
    Class_ID ClassID() override { return Class_ID(part, 0x7e577e57); }
    const TCHAR* Category() override { return _T("Tests"); }

  private:
    const TCHAR* const name;
    const ULONG part;
};

int descriptorRequests = 0;

}  // namespace

extern "C" {

__declspec(dllexport) const TCHAR* LibDescription() {
    return _T("Test plug-in");
}

__declspec(dllexport) int LibNumberClasses() {
    return 2;
}

#ifndef TEST_PARTIAL
__declspec(dllexport) ClassDesc* LibClassDesc(int index) {
    static TestClassDesc first(_T("First utility"), 1);
    static TestClassDesc second(_T("Second utility"), 2);
    ++descriptorRequests;
    return index == 0 ? &first : index == 1 ? &second : nullptr;
}
#endif

__declspec(dllexport) ULONG LibVersion() {
    return MAKE_MAX_VERSION(TEST_RELEASE, 1, 0);
}

__declspec(dllexport) int requestsSoFar() {
    return descriptorRequests;
}

}  // extern "C"
