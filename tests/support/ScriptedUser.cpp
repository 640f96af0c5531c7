#include "support/ScriptedUser.h"

#include <gtest/gtest.h>

ScriptedUser::~ScriptedUser() {
    missExpected();
}

void ScriptedUser::fail(const QString& text) {
    ADD_FAILURE() << text.toStdString();
}
