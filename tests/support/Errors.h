#pragma once

#include "platform/runtime/Error.h"

/// The number of the error that `call` raises; 0 if it raises none.
template <class Call> int errorOf(Call call) {
    try {
        static_cast<void>(call());
    } catch (const runtime::Error& error) {
        return error.number();
    }
    return 0;
}
