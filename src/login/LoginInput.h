// The numbers the login dialogs and the host give their input fields.
#pragma once

/// Input field numbers shared by the login dialogs and the host.
enum ELoginInput {
    INPUT_ACCOUNT = 1,
    INPUT_PASSWORD = 2,
    INPUT_PROTECT = 3, ///< the classic login's protection code
    INPUT_TOKEN = 4,
    INPUT_WEIXIN_TOKEN = 5,
    INPUT_WARD_TOKEN = 6,
};
