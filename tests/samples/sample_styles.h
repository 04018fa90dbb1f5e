#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "writing/reference_writer.h"

namespace sample {

inline std::filesystem::path sampleData(const std::wstring& name) {
    return std::filesystem::path(SAMPLE_DATA) / name;
}

inline Style sampleStyle(const std::wstring& name) {
    return readStyle(sampleData(L"styles/" + name + L".style"));
}

/// A test with the registered library and the sample's references; the writers live as long as it.
class SampleStyles : public testing::Test {
protected:
    SampleStyles() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
    ~SampleStyles() override {
        mWriters.clear();
        CoUninitialize();
    }

    ReferenceWriter& writer(const std::wstring& style) {
        if (!mWriters[style]) addWriter(style, sampleStyle(style));
        return *mWriters[style];
    }
    void addWriter(const std::wstring& name, Style style) {
        mWriters[name] =
            std::make_unique<ReferenceWriter>(LateBoundObject::create(L"QuorvelTemplate.Main2"), std::move(style));
    }

private:
    std::map<std::wstring, std::unique_ptr<ReferenceWriter>> mWriters;
};

}  // namespace sample
