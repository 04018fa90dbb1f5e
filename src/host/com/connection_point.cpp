#include "host/com/connection_point.h"

#include <algorithm>

#include "host/com/enumerator.h"

namespace quorvel::host {

namespace {

CONNECTDATA connection(const ConnectionPoint::Listener& listener) {
    return {ComPtr<IDispatch>(listener.object).detach(), listener.cookie};
}

IConnectionPoint* point(const ComPtr<IConnectionPoint>& point) {
    return ComPtr<IConnectionPoint>(point).detach();
}

using Connections = Enumerator<IEnumConnections, CONNECTDATA, ConnectionPoint::Listener, connection>;
using Points = Enumerator<IEnumConnectionPoints, IConnectionPoint*, ComPtr<IConnectionPoint>, point>;

/// Hands an enumerator over the list to the caller.
template <class Enumeration, class Interface, class List>
HRESULT enumerateOver(List&& list, Interface** enumerator) {
    if (enumerator == nullptr) {
        return E_POINTER;
    }
    *enumerator = nullptr;
    try {
        *enumerator = Enumeration::over(list()).detach();
    } catch (...) {
        return E_OUTOFMEMORY;
    }
    return S_OK;
}

}  // namespace

bool ConnectionPoint::isListening(DWORD cookie) const {
    return std::any_of(mListeners.begin(), mListeners.end(),
                       [&](const Listener& listener) { return listener.cookie == cookie; });
}

HRESULT ConnectionPoint::find(REFIID source, IConnectionPoint** point) {
    if (point == nullptr) {
        return E_POINTER;
    }
    const bool isOurs = source == mSource;
    *point = isOurs ? this : nullptr;
    if (!isOurs) {
        return CONNECT_E_NOCONNECTION;
    }
    AddRef();
    return S_OK;
}

HRESULT ConnectionPoint::enumerate(IEnumConnectionPoints** points) {
    return enumerateOver<Points>([&] { return std::vector{ComPtr<IConnectionPoint>(this)}; }, points);
}

STDMETHODIMP ConnectionPoint::QueryInterface(REFIID iid, void** object) {
    if (object == nullptr) {
        return E_POINTER;
    }
    const bool isOurs = iid == IID_IUnknown || iid == IID_IConnectionPoint;
    *object = isOurs ? this : nullptr;
    if (!isOurs) {
        return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
}

STDMETHODIMP ConnectionPoint::GetConnectionInterface(IID* source) {
    if (source == nullptr) {
        return E_POINTER;
    }
    *source = mSource;
    return S_OK;
}

STDMETHODIMP ConnectionPoint::GetConnectionPointContainer(IConnectionPointContainer** container) {
    if (container == nullptr) {
        return E_POINTER;
    }
    *container = mContainer;
    AddRef();
    return S_OK;
}

STDMETHODIMP ConnectionPoint::Advise(IUnknown* listener, DWORD* cookie) {
    if (listener == nullptr || cookie == nullptr) {
        return E_POINTER;
    }
    *cookie = 0;
    ComPtr<IDispatch> object = queryFor<IDispatch>(listener, mSource);
    if (!object) {
        object = queryFor<IDispatch>(listener, IID_IDispatch);
    }
    if (!object) {
        return CONNECT_E_CANNOTCONNECT;
    }
    try {
        mListeners.push_back({mLastCookie + 1, std::move(object)});
    } catch (...) {
        return E_OUTOFMEMORY;
    }
    *cookie = ++mLastCookie;
    return S_OK;
}

STDMETHODIMP ConnectionPoint::Unadvise(DWORD cookie) {
    const auto found = std::find_if(mListeners.begin(), mListeners.end(),
                                    [&](const Listener& listener) { return listener.cookie == cookie; });
    if (found == mListeners.end()) {
        return CONNECT_E_NOCONNECTION;
    }
    // It goes when it is off the list, since its end may come here again.
    const ComPtr<IDispatch> leaving = std::move(found->object);
    mListeners.erase(found);
    return S_OK;
}

STDMETHODIMP ConnectionPoint::EnumConnections(IEnumConnections** connections) {
    return enumerateOver<Connections>([&] { return mListeners; }, connections);
}

}  // namespace quorvel::host
