#pragma once

#include "host/com/automation.h"

#include <vector>

#include <ocidl.h>
#include <olectl.h>

#include "host/com/com_ptr.h"

namespace quorvel::host {

/// The listeners of an object's source interface. It is a member of the object, which answers for its
/// lifetime: whoever holds the one holds the other.
class ConnectionPoint final : public IConnectionPoint {
public:
    struct Listener {
        DWORD cookie;
        ComPtr<IDispatch> object;
    };

    /// @param container the object
    /// @param source the interface that its listeners implement
    ConnectionPoint(IConnectionPointContainer* container, REFIID source) : mContainer(container), mSource(source) {}
    ConnectionPoint(const ConnectionPoint&) = delete;
    ConnectionPoint& operator=(const ConnectionPoint&) = delete;

    /// Those that listen now, in the order in which they came. A copy, since a listener may come and go in the
    /// middle of an event.
    std::vector<Listener> listeners() const { return mListeners; }
    bool isListening(DWORD cookie) const;

    // What the object answers as IConnectionPointContainer.
    HRESULT find(REFIID source, IConnectionPoint** point);
    HRESULT enumerate(IEnumConnectionPoints** points);

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override { return mContainer->AddRef(); }
    STDMETHODIMP_(ULONG) Release() override { return mContainer->Release(); }
    STDMETHODIMP GetConnectionInterface(IID* source) override;
    STDMETHODIMP GetConnectionPointContainer(IConnectionPointContainer** container) override;
    /// A listener answers the source interface, or is called through plain IDispatch.
    STDMETHODIMP Advise(IUnknown* listener, DWORD* cookie) override;
    STDMETHODIMP Unadvise(DWORD cookie) override;
    STDMETHODIMP EnumConnections(IEnumConnections** connections) override;

private:
    IConnectionPointContainer* mContainer;
    IID mSource;
    std::vector<Listener> mListeners;
    DWORD mLastCookie = 0;
};

}  // namespace quorvel::host
