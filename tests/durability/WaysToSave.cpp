// SPDX-License-Identifier: Apache-2.0
#include "durability/WaysToSave.h"

#include "HLXIZPKWBGeneralSettingAtt.h"
#include "VEXIIniSettingManagment.h"
#include "durability/NamedDocument.h"
#include "host/system/SettingsStore.h"
#include "reference/store/StoreFixture.h"
#include "support/Capture.h"
#include "support/TemporaryFolder.h"

#include <cstdlib>

#include <sys/stat.h>

namespace durabilitytest {

namespace {

namespace store = vex::store::test;

constexpr std::size_t kSizeOfNew = 200'000;  // bytes: some pages, some writes

class ByWriter final : public WayToSave
{
public:
    explicit ByWriter(std::string path) : _path(std::move(path))
    {
        for (vex::store::Id id = 10; id < 3000; ++id) {
            _new.features.push_back({id, 4, 0, "T", "Alias", _new.features[0].attributes});
        }
    }

    void StoreOld() override
    {
        std::string error;
        ASSERT_TRUE(store::Save(_old, _path, error)) << error;
    }
    void Prepare() override {}
    bool Save(std::string& error) override { return store::Save(_new, _path, error); }
    std::string State() override
    {
        std::string error;
        const std::optional<store::Content> found = store::Load(_path, error);
        return !found ? error : *found == _old ? "old" : *found == _new ? "new" : "another one";
    }

private:
    std::string _path;
    store::Content _old = store::SmallContent();
    store::Content _new = store::SmallContent();
};

class ByDocumentServices : public WayToSave
{
public:
    explicit ByDocumentServices(std::string path) : _path(std::move(path)) {}

    void StoreOld() override { StoreNamed(_path, _old); }
    void Prepare() override
    {
        _document = std::make_unique<NamedDocument>(_path);
        ASSERT_TRUE(_document->IsOpen());
        _document->SetName(_new);
    }
    bool Save(std::string& error) override
    {
        HRESULT result = E_FAIL;
        error = hlxtest::StandardErrorOf([&] { result = Store(); });
        EXPECT_EQ(error.empty(), result == S_OK) << error;
        return result == S_OK;
    }
    std::string State() override
    {
        _document.reset();  // or it would not be opened but found open
        const std::string found = StoredName(_path);
        return found == _old ? "old" : found == _new ? "new" : "another one";
    }

protected:
    virtual HRESULT Store() { return _document->Save(); }

    const std::string _path;
    const std::string _old = Sized("old", 20'000);
    const std::string _new = Sized("new", kSizeOfNew);
    std::unique_ptr<NamedDocument> _document;
};

class BySaveAs final : public ByDocumentServices
{
public:
    using ByDocumentServices::ByDocumentServices;
    void Prepare() override
    {
        _document = std::make_unique<NamedDocument>();
        _document->SetName(_new);
    }

protected:
    HRESULT Store() override { return _document->SaveAs(_path); }
};

// A document that was not changed is stored elsewhere by copying its file.
class ByCopy final : public ByDocumentServices
{
public:
    using ByDocumentServices::ByDocumentServices;
    void StoreOld() override
    {
        ByDocumentServices::StoreOld();
        StoreNamed(_source, _new);
        // A change counter of its own: written anew, the same content would be another file.
        std::string error;
        ASSERT_TRUE(hlxtest::ChangeBySql(_source, "UPDATE document SET kind = kind", error))
            << error;
        _sourceBytes = store::ReadFile(_source);
        ASSERT_EQ(::chmod(_elsewhere.Path().c_str(), 0755), 0) << "who saves may be another user";
    }
    void Prepare() override
    {
        _document = std::make_unique<NamedDocument>(_source);
        ASSERT_TRUE(_document->IsOpen());
    }
    std::string State() override
    {
        const std::string state = ByDocumentServices::State();
        return state == "new" && store::ReadFile(_path) != _sourceBytes ? "not a copy" : state;
    }

protected:
    HRESULT Store() override { return _document->SaveAs(_path); }

private:
    hlxtest::TemporaryFolder _elsewhere;
    const std::string _source = _elsewhere.File("source.VEXAnalysis");
    std::string _sourceBytes;
};

class BySettings final : public WayToSave
{
public:
    explicit BySettings(std::string path) : _path(std::move(path)) {}

    void StoreOld() override
    {
        vex::system::SettingsStore settings(_path);
        std::string error;
        ASSERT_TRUE(settings.Set("BasicUnitLength", "in", error) &&
                    settings.Set("Another's", std::string(kSizeOfNew, 's'), error) &&
                    settings.Commit(error))
            << error;
    }
    // The controller is made once in a process, over the file that is named then.
    void Prepare() override
    {
        ::setenv("VEX_SETTINGS", _path.c_str(), 1);
        void* object = nullptr;
        ASSERT_EQ(GetZPKWBGeneralSettingCtrl(IID_HLXIZPKWBGeneralSettingAtt, &object), S_OK);
        _settings = VEXAdopt(static_cast<HLXIZPKWBGeneralSettingAtt*>(object));
        VEXUnicodeString unit;
        ASSERT_EQ(_settings->GetBasicUnitLength(unit), S_OK);
        ASSERT_EQ(unit, "in") << "the controller was made before";
        ASSERT_EQ(_settings->SetBasicUnitLength("ft"), S_OK);
    }
    bool Save(std::string& error) override
    {
        const VEXVar<VEXIIniSettingManagment> repository(_settings);
        HRESULT result = E_FAIL;
        error = hlxtest::StandardErrorOf([&] { result = repository->Commit(); });
        EXPECT_EQ(error.empty(), result == S_OK) << error;
        return result == S_OK;
    }
    std::string State() override
    {
        vex::system::SettingsStore settings(_path);
        std::string error;
        if (!settings.Load(error)) return error;
        if (settings.Get("Another's") != std::string(kSizeOfNew, 's')) return "a setting is lost";
        const std::string unit(settings.Get("BasicUnitLength").value_or("none"));
        return unit == "in" ? "old" : unit == "ft" ? "new" : unit;
    }

private:
    std::string _path;
    VEXVar<HLXIZPKWBGeneralSettingAtt> _settings;
};

template <class Way>
std::unique_ptr<WayToSave> Make(const std::string& folder)
{
    return std::make_unique<Way>(folder + '/' + WayToSave::kFile);
}

}  // namespace

std::vector<KindOfSave> KindsOfSaves()
{
    return {{"DocumentWriter", Make<ByWriter>},
            {"Save", Make<ByDocumentServices>},
            {"SaveAs", Make<BySaveAs>},
            {"SaveAsByCopy", Make<ByCopy>},
            {"SettingsCommit", Make<BySettings>}};
}

}  // namespace durabilitytest
