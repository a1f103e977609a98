#pragma once

#include <cstdlib>
#include <optional>
#include <string>

/// Sets an environment variable, or unsets it (`nullptr`), until destroyed.
class EnvironmentVariable {
public:
    EnvironmentVariable(const char* name, const char* value) : name_(name) {
        if (const char* before = std::getenv(name)) {
            before_ = before;
        }
        set(value);
    }
    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;
    ~EnvironmentVariable() { set(before_ ? before_->c_str() : nullptr); }

private:
    void set(const char* value) {
        constexpr int overwrite = 1;
        value != nullptr ? ::setenv(name_.c_str(), value, overwrite) : ::unsetenv(name_.c_str());
    }

    std::string name_;
    std::optional<std::string> before_;
};
