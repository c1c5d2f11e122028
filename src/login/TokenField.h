// The security-code field of the WeChat and security-token dialogs: eight characters, white text, filled and
// selected by the host.
#pragma once

#include "controls/SimEdit.h"

class CTokenField : public CSimEdit {
public:
    /// The field takes at most this many characters.
    static constexpr int TOKEN_LIMIT = 8;

    /// `nField` is the field number by which the host's variables address this field.
    explicit CTokenField(int nField) : m_nField(nField) {}
    ~CTokenField() override;

    /// The field's look, before the dialog's initialisation.
    void PreSetTokenParam();
    /// Empty, with its limit; at every initialisation of the dialog.
    void ResetEmpty();
    /// The host's text for this field; another field number is an assertion and changes nothing.
    void SetHostText(const char* szText, int nField);
    /// The host's selection edges: the start is kept, the end selects from start to end.
    void SetSelectionEdge(bool bEnd, int nValue);
    /// The selection edge the host reads: the start reads the field's selection first, the end answers what
    /// that read found.
    int GetSelectionEdge(bool bEnd);

private:
    int m_nField;
    int m_nSelStart = 0;
    int m_nSelEnd = 0;
};
