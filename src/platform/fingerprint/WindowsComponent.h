// Components of Windows, reached by their names: nothing of their makers is needed to build.
#pragma once

#include "platform/fingerprint/FingerprintReader.h"
#include "platform/seat/WindowsApi.h"

#include <algorithm>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include <oaidl.h>
#include <ocidl.h>

namespace velcro::fingerprint {

/// Owns one reference.
template <typename Interface>
class Com
{
public:
    Com() = default;
    explicit Com(Interface* taken)
        : object_(taken) {}
    ~Com() { reset(); }
    Com(Com&& other) noexcept
        : object_(std::exchange(other.object_, nullptr)) {}
    Com& operator=(Com&& other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }
    Com(const Com&) = delete;
    Com& operator=(const Com&) = delete;

    void reset() {
        if (object_ != nullptr) {
            std::exchange(object_, nullptr)->Release();
        }
    }
    Interface* get() const { return object_; }
    Interface* operator->() const { return object_; }
    explicit operator bool() const { return object_ != nullptr; }
    Interface** out() { return &object_; }
    void** outAny() { return reinterpret_cast<void**>(&object_); }

private:
    Interface* object_ = nullptr;
};

class Variant
{
public:
    Variant() { VariantInit(&value_); }
    explicit Variant(int number)
        : Variant() {
        value_.vt = VT_I4;
        value_.lVal = number;
    }
    explicit Variant(bool flag)
        : Variant() {
        value_.vt = VT_BOOL;
        value_.boolVal = flag ? VARIANT_TRUE : VARIANT_FALSE;
    }
    explicit Variant(const QString& text)
        : Variant() {
        value_.vt = VT_BSTR;
        value_.bstrVal = SysAllocString(reinterpret_cast<const OLECHAR*>(text.utf16()));
    }
    explicit Variant(IDispatch* object)
        : Variant() {
        value_.vt = VT_DISPATCH;
        value_.pdispVal = object;
        if (object != nullptr) {
            object->AddRef();
        }
    }
    /// A copy.
    explicit Variant(const VARIANT& other)
        : Variant() {
        VariantCopyInd(&value_, const_cast<VARIANT*>(&other));
    }
    ~Variant() { VariantClear(&value_); }
    Variant(const Variant& other)
        : Variant(other.value_) {}
    Variant& operator=(const Variant&) = delete;

    /// Bytes as the components take them.
    static Variant bytes(const QByteArray& bytes) {
        Variant variant;
        variant.value_.vt = VT_ARRAY | VT_UI1;
        variant.value_.parray = SafeArrayCreateVector(VT_UI1, 0, ULONG(bytes.size()));
        void* data = nullptr;
        if (SUCCEEDED(SafeArrayAccessData(variant.value_.parray, &data))) {
            std::copy(bytes.begin(), bytes.end(), static_cast<char*>(data));
            SafeArrayUnaccessData(variant.value_.parray);
        }
        return variant;
    }

    VARIANT* out() { return &value_; }
    const VARIANT& get() const { return value_; }
    IDispatch* object() const { return value_.vt == VT_DISPATCH ? value_.pdispVal : nullptr; }
    int number() const {
        VARIANT other;
        VariantInit(&other);
        const bool is =
            SUCCEEDED(VariantChangeType(&other, const_cast<VARIANT*>(&value_), 0, VT_I4));
        return is ? other.lVal : 0;
    }
    QString text() const {
        Variant other;
        const bool is =
            SUCCEEDED(VariantChangeType(other.out(), const_cast<VARIANT*>(&value_), 0, VT_BSTR));
        return is ? QString::fromWCharArray(other.value_.bstrVal) : QString();
    }

private:
    VARIANT value_;
};

/// A component's object; members are found by their names. Throws TemplateError for a call that
/// fails, since only those with templates do.
class Component
{
public:
    Component() = default;
    explicit Component(IDispatch* object)
        : object_(object) {
        if (object != nullptr) {
            object->AddRef();
        }
    }
    /// Null when it is not installed.
    static Component create(const wchar_t* name) {
        Component component;
        CLSID id;
        if (SUCCEEDED(CLSIDFromProgID(name, &id))) {
            CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                             component.object_.outAny());
        }
        return component;
    }

    explicit operator bool() const { return bool(object_); }
    IDispatch* get() const { return object_.get(); }

    Variant call(const wchar_t* name, std::vector<Variant> arguments = {}) const {
        return invoke(memberId(name), DISPATCH_METHOD, std::move(arguments));
    }
    Variant property(const wchar_t* name) const {
        return invoke(memberId(name), DISPATCH_PROPERTYGET, {});
    }
    void setProperty(const wchar_t* name, Variant value) const {
        setProperty(memberId(name), std::move(value));
    }
    void setProperty(DISPID id, Variant value) const {
        invoke(id, DISPATCH_PROPERTYPUT, {std::move(value)});
    }

private:
    DISPID memberId(const wchar_t* name) const {
        DISPID id = DISPID_UNKNOWN;
        auto* names = const_cast<wchar_t*>(name);
        object_->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id);
        return id;
    }
    Variant invoke(DISPID id, WORD how, std::vector<Variant> arguments) const {
        std::vector<VARIANTARG> reversed;
        for (auto argument = arguments.rbegin(); argument != arguments.rend(); ++argument) {
            reversed.push_back(argument->get());
        }
        DISPID put = DISPID_PROPERTYPUT;
        DISPPARAMS parameters{reversed.data(), nullptr, UINT(reversed.size()), 0};
        if (how == DISPATCH_PROPERTYPUT) {
            parameters.rgdispidNamedArgs = &put;
            parameters.cNamedArgs = 1;
        }
        Variant result;
        if (FAILED(object_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, how, &parameters,
                                   result.out(), nullptr, nullptr))) {
            throw TemplateError("The reader's component refused a call.");
        }
        return result;
    }

    Com<IDispatch> object_;
};

/// Hears a component's events. Arguments come as its type library has them, the last one first.
class EventSink : public IDispatch
{
public:
    using Handler = std::function<void(const DISPPARAMS& arguments)>;

    /// Finds the events' numbers by their names in the component's own description.
    EventSink(const Component& source, std::map<std::wstring, Handler> handlers)
        : handlers_(std::move(handlers)) {
        Com<IConnectionPointContainer> container;
        source.get()->QueryInterface(IID_IConnectionPointContainer, container.outAny());
        if (!container || !findEvents(source)) {
            return;
        }
        if (SUCCEEDED(container->FindConnectionPoint(interface_, point_.out()))) {
            point_->Advise(this, &cookie_);
        }
    }
    virtual ~EventSink() = default;
    EventSink(const EventSink&) = delete;
    EventSink& operator=(const EventSink&) = delete;

    void leave() {
        if (point_) {
            point_->Unadvise(cookie_);
            point_.reset();
        }
        handlers_.clear();
    }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** out) override {
        if (id == IID_IUnknown || id == IID_IDispatch || id == interface_) {
            *out = this;
            AddRef();
            return S_OK;
        }
        *out = nullptr;
        return E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --references_;
        if (left == 0) {
            delete this;
        }
        return left;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters,
                                     VARIANT*, EXCEPINFO*, UINT*) override {
        const auto name = names_.find(id);
        const auto handler = name == names_.end() ? handlers_.end() : handlers_.find(name->second);
        if (handler != handlers_.end()) {
            handler->second(*parameters);
        }
        return S_OK;
    }

private:
    bool findEvents(const Component& source) {
        Com<ITypeInfo> own;
        Com<ITypeLib> library;
        UINT place = 0;
        if (FAILED(source.get()->GetTypeInfo(0, LOCALE_USER_DEFAULT, own.out())) ||
            FAILED(own->GetContainingTypeLib(library.out(), &place))) {
            return false;
        }
        for (UINT i = 0; i < library->GetTypeInfoCount(); ++i) {
            Com<ITypeInfo> candidate;
            if (SUCCEEDED(library->GetTypeInfo(i, candidate.out())) &&
                holdsEvents(*candidate.get())) {
                return true;
            }
        }
        return false;
    }
    bool holdsEvents(ITypeInfo& candidate) {
        names_.clear();
        for (const auto& handler : handlers_) {
            auto* name = const_cast<wchar_t*>(handler.first.c_str());
            MEMBERID id = MEMBERID_NIL;
            if (FAILED(candidate.GetIDsOfNames(&name, 1, &id))) {
                return false;
            }
            names_[id] = handler.first;
        }
        TYPEATTR* attributes = nullptr;
        if (FAILED(candidate.GetTypeAttr(&attributes))) {
            return false;
        }
        interface_ = attributes->guid;
        candidate.ReleaseTypeAttr(attributes);
        return true;
    }

    std::map<std::wstring, Handler> handlers_;
    std::map<DISPID, std::wstring> names_;
    IID interface_ = IID_IDispatch;
    Com<IConnectionPoint> point_;
    DWORD cookie_ = 0;
    ULONG references_ = 1;
};

} // namespace velcro::fingerprint
