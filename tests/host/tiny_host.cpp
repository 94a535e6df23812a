// A host of its own, made of nothing but the host library and the module: one line is added in a command, then moved.
// Gives 0 when the macro is as expected. The program is linked without the embedded host, which proves that any
// application can take its place.
#include "host/db/curves.h"
#include "host/kernel/converter_module.h"
#include "host/kernel/services.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <dlfcn.h>

#include <cstdio>

namespace
{

// A drawing in which the module finds ids and no objects.
class Drawing final : public CZtDatabase
{
public:
    OdDbObjectId getOdDbObjectId(OdDbHandle handle) override { return {this, handle}; }
    OdDbObjectPtr openObject(OdDbHandle /*handle*/) override { return {}; }
    OdDbObjectId currentLayoutId() override { return {}; }
    OdDbObjectId getGroupId(const OdString& /*name*/) override { return {}; }
    double getThickness() const override { return 0.0; }
    std::int16_t getInsUnits() const override { return 0; }
    double filletRadius() const override { return 0.0; }
    double chamferFirstDistance() const override { return 0.0; }
    double chamferSecondDistance() const override { return 0.0; }
    double chamferLength() const override { return 0.0; }
    double chamferAngle() const override { return 0.0; }
};

class Host final : public CZtHost, CZtSystemServices, CZtSystemSettings, CZtDocument
{
public:
    CZtSystemServices& SystemServices() override { return *this; }
    CZtDocument* ActiveDocument() override { return this; }
    const CZtSystemSettings& Settings() const override { return *this; }
    CZtString StringForUnitScalingFactor(std::int32_t /*units*/) const override { return {}; }
    std::int16_t MacroLanguage() const override { return 0; }
    std::int16_t ChamferMode() const override { return 0; }
    std::int16_t EdgeMode() const override { return 0; }
    std::int16_t TrimMode() const override { return 0; }
    CZtDatabase* GetZtDatabase() override { return drawing_.get(); }

private:
    OdSmartPtr<Drawing> drawing_ = OdSmartPtr<Drawing>::make();
};

// The host context comes back with every value; this host scales its values by it.
CZtVariant Scaled(double value, std::uint64_t hostContext)
{
    return {value * static_cast<double>(hostContext), false};
}

class Property final : public CZtPropertyElement
{
public:
    Property(const char* name, double value) : name_(name), value_(value) {}
    const CZtString& GetName() const override { return name_; }
    const CZtString& GetGroup() const override { return group_; }
    CZtVariant GetValue(std::uint64_t hostContext) const override { return Scaled(value_, hostContext); }
    CZtVariant GetTag(std::uint64_t /*hostContext*/) const override { return {}; }

private:
    CZtString name_;
    CZtString group_ = "Geometry";
    double value_;
};

class LineAdded final : public CZtObjectAdded
{
public:
    const OdRxClass* GetObjectClass() const override { return OdDbLine::desc(); }
    const CZtPropertyList& GetProperties() const override { return properties_; }
    const CZtPropertyList& GetDefaultProperties() const override { return properties_; }
    const OdDbHandle& GetObjectHandle() const override { return handle_; }

private:
    CZtPropertyList properties_ = {OdSmartPtr<Property>::make("Start X", 1.0),
                                   OdSmartPtr<Property>::make("End Y", -0.25)};
    OdDbHandle handle_{0x2A};
};

class EndMoved final : public CZtPropertyChanged
{
public:
    const CZtString& GetName() const override { return property_->GetName(); }
    const CZtString& GetGroup() const override { return property_->GetGroup(); }
    CZtVariant GetValue(std::uint64_t hostContext) const override { return property_->GetValue(hostContext); }
    CZtVariant GetTag(std::uint64_t hostContext) const override { return property_->GetTag(hostContext); }
    const OdRxClass* GetObjectClass() const override { return OdDbLine::desc(); }
    const OdDbHandle& GetObjectHandle() const override { return handle_; }

private:
    OdSmartPtr<Property> property_ = OdSmartPtr<Property>::make("End X", 4.0);
    OdDbHandle handle_{0x2A};
};

class LineCommand final : public CZtUserCommand
{
public:
    void GetCommandName(OdResBufPtr& name) const override { name = {}; }
    const CZtJournal& GetChildEvents() const override { return children_; }

private:
    CZtJournal children_ = {OdRxObjectPtr(new LineAdded)};
};

constexpr const char* expectedBody = "    kvLine_ptr kvline1;\n"
                                     "    {\n"
                                     "        kvSketchManager->InsertLine( 2.00000000000000, 0.00000000000000, "
                                     "0.00000000000000, 0.00000000000000, -0.50000000000000, 0.00000000000000, "
                                     "&kvline1 );\n"
                                     "    }\n"
                                     "    {\n"
                                     "        double getX1;\n"
                                     "        double getY1;\n"
                                     "        double getZ1;\n"
                                     "        kvline1->GetSecondPoint( &getX1, &getY1, &getZ1);\n"
                                     "        getX1 = 8.00000000000000;\n"
                                     "        kvline1->SetSecondPoint( getX1, getY1, getZ1 );\n"
                                     "    }\n"
                                     "    return true;\n";

int Fail(const char* what, const char* detail)
{
    std::fprintf(stderr, "%s\n%s\n", what, detail);
    return 1;
}

} // namespace

int main(int argc, char** argv)
{
    void* file = argc == 2 ? dlopen(argv[1], RTLD_NOW | RTLD_LOCAL) : nullptr;
    if (file == nullptr)
    {
        return Fail("the module can't be loaded", argc == 2 ? dlerror() : "usage: kvtinyhost MODULE");
    }
    Host host;
    RegisterHost(&host);
    const auto create = reinterpret_cast<CreateModuleObjectFunction>(dlsym(file, "odrxCreateModuleObject"));
    if (create == nullptr)
    {
        return Fail("the module lacks an export", dlerror());
    }
    CZtConverterModule& module = *OdSmartPtr<CZtConverterModule>::cast(create(&file));
    module.initApp();

    const CZtJournal journal = {OdRxObjectPtr(new LineCommand), OdRxObjectPtr(new EndMoved)};
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("tiny.cpp"));
    constexpr std::uint64_t hostContext = 2;
    const ResultCode result = module.ConvertJournal(path, 0, 1, hostContext, journal);
    module.uninitApp();
    module.deleteModule();
    RegisterHost(nullptr);

    QFile macro(path);
    const QByteArray text = macro.open(QIODevice::ReadOnly) ? macro.readAll() : QByteArray();
    if (result != ResultNormal)
    {
        return Fail("the conversion failed", QByteArray::number(result).constData());
    }
    return text.contains(expectedBody) ? 0 : Fail("the macro differs", text.constData());
}
