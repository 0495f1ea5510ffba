#pragma once

#include "Error.h"

namespace MTools {

// Shared owner of a heap object: a small heap record holding a plain (not atomic)
// count and the pointer. The last handle to let go deletes the object.
// Reaching through an empty handle throws Error("Null handle").
template <class T> class Handle
{
public:
    Handle() = default;

    explicit Handle(T* object)
        : m_record(object ? new Record { 1, object } : nullptr)
    {
    }

    Handle(const Handle& other)
        : m_record(other.m_record)
    {
        if (m_record)
            ++m_record->count;
    }

    Handle& operator=(const Handle& other)
    {
        if (m_record != other.m_record) {
            if (other.m_record)
                ++other.m_record->count;
            release();
            m_record = other.m_record;
        }
        return *this;
    }

    ~Handle() { release(); }

    T* operator->() const { return checked(); }
    T& operator*() const { return *checked(); }

    // The object, or nullptr for an empty handle; never throws.
    T* get() const { return m_record ? m_record->object : nullptr; }
    bool isNull() const { return m_record == nullptr; }
    // How many handles share the object; 0 for an empty handle.
    int count() const { return m_record ? m_record->count : 0; }

    // Lets go of the object (deleting it if this was the last handle).
    void reset()
    {
        release();
        m_record = nullptr;
    }

    bool operator==(const Handle& other) const { return get() == other.get(); }
    bool operator!=(const Handle& other) const { return get() != other.get(); }

private:
    struct Record
    {
        int count;
        T* object;
    };

    T* checked() const
    {
        if (!m_record)
            throw Error("Null handle");
        return m_record->object;
    }

    void release()
    {
        if (m_record && --m_record->count == 0) {
            delete m_record->object;
            delete m_record;
        }
    }

    Record* m_record = nullptr;
};

} // namespace MTools
