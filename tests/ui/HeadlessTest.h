// The fixture of every headless UI test: the scripted backend in force, every unscripted
// message box, chooser, menu or dialog a failure of the test that met it, and every answer the
// test gave but the program never asked for a failure at the end.
#pragma once

#include <gtest/gtest.h>

#include "platform/headless/HeadlessBackend.h"
#include "platform/headless/HeadlessUser.h"

class HeadlessTest : public ::testing::Test {
protected:
    HeadlessTest() {
        ui.SetFailureHandler([](const std::string& problem) { ADD_FAILURE() << problem; });
    }
    void TearDown() override { ui.CheckAllUsed(); }

    CHeadlessBackend ui;
};
