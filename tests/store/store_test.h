#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "settings/sqlite/sqlite_store.h"
#include "tests/store/scratch_folder.h"

namespace tarnwick {

/// A folder for the file of a store, and what the store tells.
class StoreTest : public testing::Test {
  protected:
    /// "-" for a key that is not there.
    static std::string read(Store& store, const std::string& key) {
        return store.read("Tarnwick", "setting", key).value_or("-");
    }
    static void save(Store& store, const std::string& key, const std::string& text) {
        store.save("Tarnwick", "setting", key, text);
    }
    void listen(Store& store) {
        store.listen([this](const std::string& sentence) { told.push_back(sentence); });
    }
    /// What another program reads and saves.
    std::string on_disk(const std::string& key) { return read(*std::make_unique<SqliteStore>(path), key); }
    void save_on_disk(const std::string& key, const std::string& text) {
        save(*std::make_unique<SqliteStore>(path), key, text);
    }

    ScratchFolder folder{"store"};
    std::string path = folder / "settings.sqlite";
    std::vector<std::string> told;
};

}  // namespace tarnwick
