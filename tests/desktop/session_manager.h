#pragma once

#include <memory>
#include <string>

namespace tarnwick {

/// A session manager (XSMP) with the one program that is started with its address.
class SessionManager {
  public:
    /// Throws std::runtime_error.
    SessionManager();
    ~SessionManager();
    SessionManager(const SessionManager&) = delete;
    SessionManager& operator=(const SessionManager&) = delete;

    /// For the variable SESSION_MANAGER.
    const std::string& address() const;

    /// Waits for the program to join the session; false when it does not.
    bool joined();
    /// Asks the program to save itself, for a logout or only so; false when it does not say that it has.
    bool save(bool logout);
    /// The logout goes no further.
    void call_off();
    /// The session ends: the program is to go. False when it does not leave the session.
    bool end();

    struct State;

  private:
    std::unique_ptr<State> state_;
};

}  // namespace tarnwick
