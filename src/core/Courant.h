#pragma once

#include <QtGlobal>
#include <utility>

/// Base of the few process-wide objects: the newest living one is the current one, so that a test sets up
/// its own for as long as it needs it and the one before comes back by itself.
template <class T>
class Courant
{
public:
    Courant(const Courant &) = delete;
    Courant &operator=(const Courant &) = delete;

    /// The object in force. One must have been set up before.
    static T &courant()
    {
        Q_ASSERT(s_courant);
        return static_cast<T &>(*s_courant);
    }

protected:
    Courant()
        : m_precedent(std::exchange(s_courant, this))
    {
    }
    ~Courant() { s_courant = m_precedent; }

private:
    inline static Courant *s_courant = nullptr;
    Courant *m_precedent;
};
