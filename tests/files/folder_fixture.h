#pragma once

#include <optional>

#include "tests/settings/store_fixture.h"
#include "tests/support/install_folder.h"

// A registry and an install folder of the test's own.
class FolderFixture : public StoreFixture {
  protected:
    void SetUp() override {
        StoreFixture::SetUp();
        folder_.emplace();
    }
    void TearDown() override {
        folder_.reset();
        StoreFixture::TearDown();
    }

    std::optional<InstallFolder> folder_;
};
