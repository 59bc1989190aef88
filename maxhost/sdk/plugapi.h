#pragma once

#include "baseinterface.h"
#include "ioapi.h"
#include "maxversion.h"
#include "strclass.h"

class Interface;
class INode;
class ActionTable;
class ReferenceTarget;

/// Super class ids.
constexpr SClass_ID BASENODE_CLASS_ID = 0x1;
constexpr SClass_ID DERIVOB_CLASS_ID = 0x3;
constexpr SClass_ID WSM_DERIVOB_CLASS_ID = 0x4;
constexpr SClass_ID PARAMETER_BLOCK_CLASS_ID = 0x8;
constexpr SClass_ID PARAMETER_BLOCK2_CLASS_ID = 0x82;
constexpr SClass_ID GEOMOBJECT_CLASS_ID = 0x10;
constexpr SClass_ID CAMERA_CLASS_ID = 0x20;
constexpr SClass_ID LIGHT_CLASS_ID = 0x30;
constexpr SClass_ID SHAPE_CLASS_ID = 0x40;
constexpr SClass_ID HELPER_CLASS_ID = 0x50;
constexpr SClass_ID SYSTEM_CLASS_ID = 0x60;
constexpr SClass_ID REF_MAKER_CLASS_ID = 0x100;
constexpr SClass_ID REF_TARGET_CLASS_ID = 0x200;
constexpr SClass_ID OSM_CLASS_ID = 0x810;
constexpr SClass_ID WSM_CLASS_ID = 0x820;
constexpr SClass_ID WSM_OBJECT_CLASS_ID = 0x830;
constexpr SClass_ID SCENE_IMPORT_CLASS_ID = 0xA10;
constexpr SClass_ID SCENE_EXPORT_CLASS_ID = 0xA20;
constexpr SClass_ID MATERIAL_CLASS_ID = 0xC00;
constexpr SClass_ID TEXMAP_CLASS_ID = 0xC10;
constexpr SClass_ID UTILITY_CLASS_ID = 0x1020;
constexpr SClass_ID GUP_CLASS_ID = 0x10E0;
constexpr SClass_ID CTRL_INTEGER_CLASS_ID = 0x9002;
constexpr SClass_ID CTRL_FLOAT_CLASS_ID = 0x9003;
constexpr SClass_ID CTRL_POINT3_CLASS_ID = 0x9005;
constexpr SClass_ID CTRL_QUAT_CLASS_ID = 0x9007;
constexpr SClass_ID CTRL_MATRIX3_CLASS_ID = 0x9008;
constexpr SClass_ID CTRL_POSITION_CLASS_ID = 0x900B;
constexpr SClass_ID CTRL_ROTATION_CLASS_ID = 0x900C;
constexpr SClass_ID CTRL_SCALE_CLASS_ID = 0x900D;

/// First parts of built-in class ids; the second part is 0.
constexpr ULONG TRIOBJ_CLASS_ID = 0x9;
constexpr ULONG SPLINESHAPE_CLASS_ID = 0xA;
constexpr ULONG BOXOBJ_CLASS_ID = 0x10;
constexpr ULONG SPHERE_CLASS_ID = 0x11;
constexpr ULONG CYLINDER_CLASS_ID = 0x12;
constexpr ULONG SIMPLE_CAM_CLASS_ID = 0x1001;
constexpr ULONG LOOKAT_CAM_CLASS_ID = 0x1002;
constexpr ULONG LININTERP_FLOAT_CLASS_ID = 0x2001;
constexpr ULONG LININTERP_POSITION_CLASS_ID = 0x2002;
constexpr ULONG LININTERP_ROTATION_CLASS_ID = 0x2003;
constexpr ULONG LININTERP_SCALE_CLASS_ID = 0x2004;
constexpr ULONG PRS_CONTROL_CLASS_ID = 0x2005;
constexpr ULONG HYBRIDINTERP_FLOAT_CLASS_ID = 0x2007;
constexpr ULONG HYBRIDINTERP_POSITION_CLASS_ID = 0x2008;
constexpr ULONG HYBRIDINTERP_SCALE_CLASS_ID = 0x2010;
constexpr ULONG PATH_CONTROL_CLASS_ID = 0x2011;
constexpr ULONG POINTHELP_CLASS_ID = 0x2011;
constexpr ULONG EULER_CONTROL_CLASS_ID = 0x2012;
constexpr ULONG DUMMY_CLASS_ID = 0x876234;

/// Describes one plug-in class to the host. The library owns it; the host keeps the pointer while the library
/// is loaded.
class ClassDesc : public InterfaceServer {
  public:
    /// Whether the host offers the class to the user.
    virtual int IsPublic() = 0;
    /// A new instance, owned by the caller. `loading` is TRUE when a scene file is being read.
    virtual void* Create(BOOL loading = FALSE) = 0;
    /// 0: the host runs its own creation process.
    virtual int BeginCreate(Interface* /*ip*/) { return 0; }
    virtual int EndCreate(Interface* /*ip*/) { return 0; }
    virtual const TCHAR* ClassName() = 0;
    virtual SClass_ID SuperClassID() = 0;
    virtual Class_ID ClassID() = 0;
    virtual const TCHAR* Category() = 0;
    virtual BOOL OkToCreate(Interface* /*ip*/) { return TRUE; }
    virtual BOOL HasClassParams() { return FALSE; }
    virtual void EditClassParams(HWND /*parent*/) {}
    virtual void ResetClassParams(BOOL /*fileReset*/ = FALSE) {}
    virtual int NumActionTables() { return 0; }
    virtual ActionTable* GetActionTable(int /*i*/) { return nullptr; }
    virtual BOOL IsManipulator() { return FALSE; }
    virtual BOOL CanManipulate(ReferenceTarget* /*target*/) { return FALSE; }
    virtual BOOL CanManipulateNode(INode* /*node*/) { return FALSE; }
    virtual ReferenceTarget* CreateManipulator(ReferenceTarget* /*target*/, INode* /*node*/) {
        return nullptr;
    }
    virtual ReferenceTarget* CreateManipulator(INode* /*node*/) { return nullptr; }
    virtual BOOL NeedsToSave() { return FALSE; }
    virtual IOResult Save(ISave* /*isave*/) { return IO_OK; }
    virtual IOResult Load(ILoad* /*iload*/) { return IO_OK; }
    virtual DWORD InitialRollupPageState() { return 0x7fffffff; }
    virtual const TCHAR* InternalName() { return nullptr; }
    virtual HINSTANCE HInstance() { return nullptr; }
};
