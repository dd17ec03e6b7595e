#pragma once

#include <QString>

#include <optional>
#include <utility>

namespace tb {

// The outcome of an operation that can fail: success, or the message the user is shown.
// The core never throws across its interface; callers test the result and hand the
// message to the Prompter (or to stderr in the command-line tool).
class [[nodiscard]] Result
{
public:
    static Result success() { return Result(); }
    static Result failure(QString message) { return Result(std::move(message)); }

    bool ok() const { return !m_failed; }
    explicit operator bool() const { return ok(); }
    const QString &message() const { return m_message; }

private:
    Result() = default;
    explicit Result(QString message)
        : m_failed(true)
        , m_message(std::move(message))
    {}

    bool m_failed = false;
    QString m_message;
};

// A value, or the message saying why there is none.
template <typename T>
class [[nodiscard]] ResultOf
{
public:
    ResultOf(T value)
        : m_value(std::move(value))
    {}
    ResultOf(Result failure)
        : m_message(failure.message())
    {}

    static ResultOf failure(QString message) { return ResultOf(Result::failure(std::move(message))); }

    bool ok() const { return m_value.has_value(); }
    explicit operator bool() const { return ok(); }
    const T &value() const { return *m_value; }
    T &value() { return *m_value; }
    const T &operator*() const { return *m_value; }
    const T *operator->() const { return &*m_value; }
    const QString &message() const { return m_message; }

private:
    std::optional<T> m_value;
    QString m_message;
};

} // namespace tb
