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
    /// Creates the key or overwrites its value: a transaction of its own.
    virtual void save(const std::string& application, const std::string& section, const std::string& key,
                      const std::string& text) = 0;
    /// Runs `action`; all that it saves is stored together or, after a failure or a crash, not at all. Where
    /// the file cannot be written just now, the action is run once more when it can, on what the file holds
    /// by then: it must depend on nothing else that changes, and holds by value what it needs. `done` is run
    /// once the values are stored. There is no transaction within another.
    void transaction(const std::function<void()>& action, const std::function<void()>& done = {}) {
        carry_out(action, done);
    }

    /// Whether the value of a key could be read when it was asked for last: nothing may be made of a default
    /// that stands in for one that could not.
    virtual bool knows(const std::string&, const std::string&, const std::string&) const { return true; }

    /// Whether something waits to be stored, and another try. Whoever calls for the tries is told by
    /// `on_waiting` when there is something new to wait for.
    virtual bool waits() const { return false; }
    virtual void try_again() {}
    std::function<void()> on_waiting;
    /// The last try, with some patience. Nothing is read or saved after it.
    virtual void close() {}

    /// Whom to tell, in one sentence for the player, about the store's troubles. Each is told once; one met
    /// before anyone listens is told now.
    void listen(std::function<void(const std::string& sentence)> listener);

  protected:
    virtual void carry_out(const std::function<void()>& action, const std::function<void()>& done) = 0;
    void notice(const std::string& sentence);
    void call_waiter() const {
        if (on_waiting) on_waiting();
    }

  private:
    std::function<void(const std::string&)> listener_;
    std::string untold_;
};

/// A store in memory, for tests and for games that are played headless.
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
