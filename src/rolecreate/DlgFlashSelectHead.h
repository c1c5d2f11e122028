// Head choice of the standard creation layout: a grid of up to sixteen faces replacing the profession dialog.
#pragma once

#include <array>
#include <cstdint>

#include "controls/SimButton.h"
#include "controls/SimDialog.h"
#include "controls/SimImage.h"

class CDlgFlashSelectPro;

class CDlgFlashSelectHead : public CSimDialog {
public:
    static constexpr UINT IDD = 1010;
    static constexpr UINT IDC_LARGE_FACE = 1058;
    static constexpr UINT IDC_HOVER_FRAME = 1162;
    static constexpr UINT IDC_BACK = 1021;
    static constexpr int FACE_BUTTONS = 16;
    static constexpr UINT FACE_BUTTON_IDS[FACE_BUTTONS] = {1059, 1060, 1065, 1066, 1067, 1068, 1061, 1062,
                                                           1069, 1070, 1071, 1072, 1073, 1074, 1075, 1076};
    static constexpr std::uint32_t STR_HOVER_OFFSET = 7000200;

    CDlgFlashSelectHead();
    ~CDlgFlashSelectHead() override;

    /// The profession dialog whose choice decides the faces, and which this dialog gives way to.
    void Link(CDlgFlashSelectPro* pSelectPro) { m_pSelectPro = pSelectPro; }

    BOOL OnInitDialog() override;
    void PreSetParam() override;
    void DoDataExchange(LuGui::CDataExchange* pDX) override;
    void MessageMap() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    LRESULT WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) override;
    int Show() override;
    /// The creation choice back to its start (not the toolkit's Reset, which the manager runs for every
    /// dialog on a host reset and which must neither send nor lose the choice).
    void ResetChoice();

    int GetHead() const { return m_nHead; }
    int GetCount() const { return m_nCount; }
    /// Face id of a head index for the profession dialog's profession and sex (0 when not configured).
    std::int32_t FaceOf(int nIndex) const;
    /// The look registration sends for a head index: face - 10000, never below 0.
    std::int32_t GetLook(int nIndex) const;
    /// Number of faces configured for the profession dialog's sex.
    int GetFaceCount() const;
    /// "Face%d" of a face id.
    static void FormatFaceTitle(std::int32_t nFace, char* szBuf, int nSize);

private:
    void OnFace(int nIndex);
    void OnBack();
    /// Hides this dialog and shows the profession dialog.
    void ReturnToProfession();
    /// The face button under a screen point, -1 when none among those in use.
    int FaceButtonAt(POINT pt) const;
    void ShowHoverFrame(int nButton);

    int m_nCount = 0;
    int m_nHead = 0;
    bool m_bHeadClickable = false;
    CDlgFlashSelectPro* m_pSelectPro = nullptr;
    CSimImage m_imgLargeFace;
    CSimImage m_imgHoverFrame;
    std::array<CSimImage, FACE_BUTTONS> m_imgFaces;
    CSimButton m_btnBack;
};
