#pragma once

#include <cstdint>
#include <string>

#include "platform/headless.h"
#include "settings/store.h"

namespace tarnwick {

/// The program on the headless desktop. Settings that it finds at its start are saved before `start`.
class HeadlessGame {
  public:
    explicit HeadlessGame(PixelSize screen = {810, 610}) : desktop(screen) {}
    ~HeadlessGame();
    HeadlessGame(const HeadlessGame&) = delete;
    HeadlessGame& operator=(const HeadlessGame&) = delete;

    void start(std::uint32_t deal = 1);

    void save(const std::string& key, const std::string& text) {
        store.save("Tarnwick", "setting", key, text);
    }

    HeadlessDesktop desktop;
    MemoryStore store;
};

}  // namespace tarnwick
