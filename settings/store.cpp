#include "settings/store.h"

#include <utility>

namespace tarnwick {
namespace {

std::string address(const std::string& application, const std::string& section, const std::string& key) {
    return application + '\n' + section + '\n' + key;
}

}  // namespace

void Store::listen(std::function<void(const std::string&)> listener) {
    listener_ = std::move(listener);
    if (listener_ && !untold_.empty()) listener_(std::exchange(untold_, {}));
}

void Store::notice(const std::string& sentence) {
    if (listener_) {
        listener_(sentence);
    } else {
        untold_ += untold_.empty() ? sentence : ' ' + sentence;
    }
}

std::optional<std::string> MemoryStore::read(const std::string& application, const std::string& section,
                                             const std::string& key) {
    const auto found = values_.find(address(application, section, key));
    if (found == values_.end()) return std::nullopt;
    return found->second;
}

void MemoryStore::save(const std::string& application, const std::string& section, const std::string& key,
                       const std::string& text) {
    values_[address(application, section, key)] = text;
}

void MemoryStore::carry_out(const std::function<void()>& action, const std::function<void()>& done) {
    const auto before = values_;
    try {
        action();
    } catch (...) {
        values_ = before;
        throw;
    }
    if (done) done();
}

}  // namespace tarnwick
