// What a routine's exception says.
#pragma once

#include "data/Errors.h"

#include <exception>
#include <functional>

inline QString failureOf(const std::function<void()>& work) {
    try {
        work();
    } catch (const std::exception& error) {
        return errorText(error);
    }
    return "no failure";
}
