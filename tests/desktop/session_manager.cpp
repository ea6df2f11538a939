#include "tests/desktop/session_manager.h"

#include <X11/SM/SMlib.h>
#include <poll.h>

#include <array>
#include <atomic>
#include <cstdlib>
#include <mutex>
#include <stdexcept>
#include <thread>
#include <vector>

#include "tools/driver/eventually.h"

namespace tarnwick {

struct SessionManager::State {
    int listener_count = 0;
    IceListenObj* listeners = nullptr;
    std::string address;
    std::vector<IceConn> connections;
    SmsConn client = nullptr;
    bool saved = false;
    bool left = false;
    // The program waits for answers while the test waits for the program.
    std::mutex mutex;
    std::atomic<bool> over = false;
    std::thread listener;
};

namespace {

using State = SessionManager::State;

State& state_of(SmPointer data) { return *static_cast<State*>(data); }

// Lets everybody in: the address is this process's own secret.
Bool let_in(char*) { return True; }

Status join(SmsConn connection, SmPointer data, char* previous_id) {
    if (previous_id) return False;
    char* id = SmsGenerateClientID(connection);
    SmsRegisterClientReply(connection, id);
    std::free(id);
    SmsSaveYourself(connection, SmSaveLocal, False, SmInteractStyleNone, False);
    state_of(data).client = connection;
    return True;
}

void note_saved(SmsConn connection, SmPointer data, Bool) {
    SmsSaveComplete(connection);
    state_of(data).saved = true;
}

void note_left(SmsConn, SmPointer data, int count, char** reasons) {
    SmFreeReasons(count, reasons);
    state_of(data).left = true;
}

void free_properties(SmsConn, SmPointer, int count, SmProp** properties) {
    for (int i = 0; i < count; ++i) SmFreeProperty(properties[i]);
    std::free(properties);
}

Status new_client(SmsConn, SmPointer data, unsigned long* mask, SmsCallbacks* callbacks, char**) {
    const auto nothing = [](auto...) {};
    *callbacks = {
        .register_client = {join, data},
        .interact_request = {nothing, data},
        .interact_done = {nothing, data},
        .save_yourself_request = {nothing, data},
        .save_yourself_phase2_request = {nothing, data},
        .save_yourself_done = {note_saved, data},
        .close_connection = {note_left, data},
        .set_properties = {free_properties, data},
        .delete_properties = {nothing, data},
        .get_properties = {nothing, data},
    };
    // Every one of them.
    *mask = (SmsGetPropertiesProcMask << 1) - 1;
    return True;
}

void close(IceConn connection) {
    IceSetShutdownNegotiation(connection, False);
    IceCloseConnection(connection);
}

bool readable(int file) {
    pollfd waiting{file, POLLIN, 0};
    return poll(&waiting, 1, 0) > 0;
}

void accept_clients(State& state) {
    for (int i = 0; i < state.listener_count; ++i) {
        if (!readable(IceGetListenConnectionNumber(state.listeners[i]))) continue;
        IceAcceptStatus status{};
        const IceConn connection = IceAcceptConnection(state.listeners[i], &status);
        if (connection) state.connections.push_back(connection);
    }
}

// Takes note of what the program has sent.
void listen(State& state) {
    const std::scoped_lock lock(state.mutex);
    accept_clients(state);
    std::erase_if(state.connections, [&state](IceConn connection) {
        const bool broken = readable(IceConnectionNumber(connection)) &&
                            IceProcessMessages(connection, nullptr, nullptr) != IceProcessMessagesSuccess;
        if (!broken) return false;
        state.left = true;
        close(connection);
        return true;
    });
}

bool comes_to_hold(State& state, const bool& fact) {
    return eventually([&] {
        const std::scoped_lock lock(state.mutex);
        return fact;
    });
}

}  // namespace

SessionManager::SessionManager() : state_(std::make_unique<State>()) {
    // A program that goes without a word must not take this process with it.
    IceSetIOErrorHandler([](IceConn) {});
    std::array<char, 256> error{};
    const int size = static_cast<int>(error.size());
    const bool ready =
        SmsInitialize("Tarnwick", "1", new_client, state_.get(), let_in, size, error.data()) &&
        IceListenForConnections(&state_->listener_count, &state_->listeners, size, error.data());
    if (!ready) throw std::runtime_error(std::string("no session manager: ") + error.data());
    for (int i = 0; i < state_->listener_count; ++i) IceSetHostBasedAuthProc(state_->listeners[i], let_in);
    char* ids = IceComposeNetworkIdList(state_->listener_count, state_->listeners);
    state_->address = ids;
    std::free(ids);
    state_->listener = std::thread([&state = *state_] {
        while (!state.over) {
            listen(state);
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        }
    });
}

SessionManager::~SessionManager() {
    state_->over = true;
    state_->listener.join();
    for (const IceConn connection : state_->connections) close(connection);
    IceFreeListenObjs(state_->listener_count, state_->listeners);
}

const std::string& SessionManager::address() const { return state_->address; }

bool SessionManager::joined() { return comes_to_hold(*state_, state_->saved); }

bool SessionManager::save(bool logout) {
    {
        const std::scoped_lock lock(state_->mutex);
        state_->saved = false;
        SmsSaveYourself(state_->client, SmSaveBoth, logout, SmInteractStyleNone, False);
    }
    return joined();
}

void SessionManager::call_off() {
    const std::scoped_lock lock(state_->mutex);
    SmsShutdownCancelled(state_->client);
}

bool SessionManager::end() {
    {
        const std::scoped_lock lock(state_->mutex);
        SmsDie(state_->client);
    }
    return comes_to_hold(*state_, state_->left);
}

}  // namespace tarnwick
