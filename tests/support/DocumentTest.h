#pragma once
// Base of every test fixture: the document starts and ends in its start state, with the
// kite numbers and colours of a new editor, and dialogs that a test can script.
#include <gtest/gtest.h>

#include "model/Document.h"
#include "support/Doubles.h"

class DocumentTest : public ::testing::Test {
protected:
  void SetUp() override {
    ReinitialiseDocument();
    InitialiseNumCoul();
    SetDialogues(&dialogues);
  }
  void TearDown() override {
    ReinitialiseDocument();
    SetDialogues(nullptr);
  }

  TDialoguesScriptes dialogues;
};
