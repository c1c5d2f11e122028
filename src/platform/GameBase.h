// The game base library's camera, 3D effects of the game scene and the map instance the previews touch.
#pragma once

#include <memory>

#include "BaseLib.h"

/// The scene camera: a camera object of the game data, played frame by frame.
class ICamera {
public:
    /// Selects camera object nObj (0: the free camera).
    virtual void SetCameraObj(int nObj, bool bFlag) = 0;
    /// Shows frame nFrame of the selected camera object's animation.
    virtual void SetCameraObjFrame(int nFrame, bool bFlag, bool bApply, int n1, int n2) = 0;

protected:
    ~ICamera() = default;
};
/// The process-wide camera (never null).
ICamera* CameraQuery();

/// A set of named 3D effects drawn in the game scene (the ground under a figure, marks over buttons).
class CMyGame3DEffectEx {
public:
    explicit CMyGame3DEffectEx(bool bFlag);
    ~CMyGame3DEffectEx();
    CMyGame3DEffectEx(const CMyGame3DEffectEx&) = delete;
    CMyGame3DEffectEx& operator=(const CMyGame3DEffectEx&) = delete;

    void Clear();
    void SetOblique(bool bOblique);
    /// Adds the effect szName (once); false for an empty name.
    bool Add(const char* szName);
    void Scale(double dX, double dY, double dZ);
    /// Moves where the effects are drawn.
    void SetOffset(int x, int y, int z, int nReserved);
    /// Draws every effect at (x, y) plus the offset; szName null draws all.
    void Show(int x, int y, const char* szName);
    /// Whether the effect szName is present.
    bool TestEffect(const char* szName) const;
    int GetAmount() const;

    struct SImpl;

private:
    std::unique_ptr<SImpl> m_pImpl;
};

/// The map library's instance; the English preview calls one operation of it before drawing its figure.
class IGameMap {
public:
    static IGameMap* GetInstance();
    /// Converts a screen point to the map's cell; the results are the map library's.
    virtual void ScreenToCell(int x, int y, int& nCellX, int& nCellY) = 0;

protected:
    ~IGameMap() = default;
};
