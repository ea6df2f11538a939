#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>

namespace tarnwick {

/// The per-user store of text values. Each is addressed by an application, a section and a key.
class Store {
  public:
    Store() = default;
    virtual ~Store() = default;
    Store(const Store&) = delete;
    Store& operator=(const Store&) = delete;

    /// The stored text, or nothing when the key does not exist.
    virtual std::optional<std::string> read(const std::string& application, const std::string& section,
                                            const std::string& key) = 0;
    /// Creates the key or overwrites its value. What was saved is read back from now on, whatever happens to
    /// the file; the listener is told when a value could not be written.
    virtual void save(const std::string& application, const std::string& section, const std::string& key,
                      const std::string& text) = 0;
    /// Runs `action`; all that it saves is stored together or, after a failure or a crash, not at all. Where
    /// the file cannot be written just now, the action is run once more when it can, on what the file holds
    /// by then: it must depend on nothing else that changes. `done` is run once the values are stored.
    /// Within a transaction another one is part of it.
    void transaction(const std::function<void()>& action, const std::function<void()>& done = {}) {
        carry_out(action, done);
    }

    /// Whom to tell, in one sentence for the player, about the store's troubles. Each is told once; one met
    /// before anyone listens is told now.
    void listen(std::function<void(const std::string& sentence)> listener);

  protected:
    virtual void carry_out(const std::function<void()>& action, const std::function<void()>& done) = 0;
    void notice(const std::string& sentence);

  private:
    std::function<void(const std::string&)> listener_;
    std::string untold_;
};

/// A store in memory: for tests, and for a player whose disk takes nothing.
class MemoryStore : public Store {
  public:
    std::optional<std::string> read(const std::string& application, const std::string& section,
                                    const std::string& key) override;
    void save(const std::string& application, const std::string& section, const std::string& key,
              const std::string& text) override;

  protected:
    void carry_out(const std::function<void()>& action, const std::function<void()>& done) override;

  private:
    std::map<std::string, std::string> values_;
};

}  // namespace tarnwick
