// The system's imaging component (WIC), as reading and writing pictures share it.
#pragma once

#include <windows.h>

#include <wincodec.h>

namespace kestview {

/// A COM interface that is released with its holder.
template <class Interface>
class Com {
public:
    Com() = default;
    ~Com() {
        if (held) held->Release();
    }
    Com(const Com&) = delete;
    Com& operator=(const Com&) = delete;
    Interface** operator&() { return &held; }
    Interface* operator->() const { return held; }
    operator Interface*() const { return held; }

private:
    Interface* held = nullptr;
};

inline bool MakeWicFactory(Com<IWICImagingFactory>& factory) {
    return CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IWICImagingFactory,
                            reinterpret_cast<void**>(&factory)) >= 0;
}

}  // namespace kestview
