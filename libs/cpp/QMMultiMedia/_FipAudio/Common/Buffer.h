#pragma once

#include "AudioIO.h"

#include <algorithm>

namespace Audio {

// An owned array of samples of type T with its size; copies copy the contents.
// A size below 1 gives an empty buffer without an array.
template <class T> class Buffer : public AudioIO
{
public:
    explicit Buffer(int size)
        : m_size(size > 0 ? size : 0)
        , m_data(m_size > 0 ? new T[m_size]() : nullptr)
    {
    }

    Buffer(const Buffer& other)
        : AudioIO(other)
        , m_size(other.m_size)
        , m_data(duplicate(other.m_data, other.m_size))
    {
    }

    Buffer& operator=(const Buffer& other)
    {
        if (this != &other) {
            T* data = duplicate(other.m_data, other.m_size);
            delete[] m_data;
            m_data = data;
            m_size = other.m_size;
            AudioIO::operator=(other);
        }
        return *this;
    }

    ~Buffer() override { delete[] m_data; }

    int size() const { return m_size; }
    T* data() const { return m_data; }

private:
    static T* duplicate(const T* data, int size)
    {
        if (size <= 0 || !data)
            return nullptr;
        T* copy = new T[static_cast<size_t>(size)];
        std::copy(data, data + size, copy);
        return copy;
    }

    int m_size = 0;
    T* m_data = nullptr;
};

} // namespace Audio
