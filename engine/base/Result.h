// Errors of the disc engine are values: a process exit code and one sentence for a person.
#pragma once

#include <string>
#include <utility>
#include <variant>

namespace engine {

/// Exit codes that the engine's programs share.
enum class Exit : int {
    success = 0,
    failed = 1, ///< the operation was tried and failed
    usage = 2, ///< wrong arguments
    noDisc = 3, ///< no such drive, or no disc in it
    interrupted = 130,
    terminated = 143,
};

/// What went wrong. `message` is one plain sentence without a line break that names the drive or
/// file and says what to do.
struct Error {
    Exit exit = Exit::failed;
    std::string message;
};

/// Either a value or an Error. Testing it tells which; error() on a value and value() on an
/// error are programming mistakes (std::bad_variant_access).
template <class T>
class [[nodiscard]] Result {
public:
    Result(T value)
        : m_state(std::in_place_index<0>, std::move(value))
    {
    }
    Result(Error error)
        : m_state(std::in_place_index<1>, std::move(error))
    {
    }

    explicit operator bool() const { return m_state.index() == 0; }
    T &value() & { return std::get<0>(m_state); }
    const T &value() const & { return std::get<0>(m_state); }
    T &&value() && { return std::get<0>(std::move(m_state)); }
    T *operator->() { return &value(); }
    const T *operator->() const { return &value(); }
    T &operator*() & { return value(); }
    const T &operator*() const & { return value(); }
    const Error &error() const { return std::get<1>(m_state); }

private:
    std::variant<T, Error> m_state;
};

/// The result of an operation that yields nothing but may fail.
template <>
class [[nodiscard]] Result<void> {
public:
    Result() = default;
    Result(Error error)
        : m_error(std::move(error))
        , m_ok(false)
    {
    }

    explicit operator bool() const { return m_ok; }
    const Error &error() const { return m_error; }

private:
    Error m_error;
    bool m_ok = true;
};

} // namespace engine
