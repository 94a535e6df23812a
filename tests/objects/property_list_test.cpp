// How the conversion uses up the properties of an event.
#include "objects/property_list.h"

#include <gtest/gtest.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QTranslator>

namespace
{

// An element whose tag is its value and the host context.
class Element final : public CZtPropertyElement
{
public:
    Element(const char* name, const char* group, std::int32_t value) : name_(name), group_(group), value_(value) {}
    const CZtString& GetName() const override { return name_; }
    const CZtString& GetGroup() const override { return group_; }
    CZtVariant GetValue(std::uint64_t /*hostContext*/) const override { return value_; }
    CZtVariant GetTag(std::uint64_t hostContext) const override
    {
        return value_ + static_cast<std::int32_t>(hostContext);
    }

private:
    CZtString name_;
    CZtString group_;
    std::int32_t value_;
};

class German final : public QTranslator
{
public:
    Q_DISABLE_COPY(German)
    German() { QCoreApplication::installTranslator(this); }
    ~German() override { QCoreApplication::removeTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char* /*disambiguation*/, int /*n*/) const override
    {
        const std::string word = std::string(context) + '/' + text;
        return word == "property_types/Radius"             ? QStringLiteral("Halbmesser")
               : word == "property_groups/BlockAttributes" ? QStringLiteral("Attribute")
                                                           : QString();
    }
};

// Keeps the elements, as an event does.
struct Elements
{
    Elements(std::initializer_list<Element*> elements) : list(elements.begin(), elements.end()) {}
    [[nodiscard]] PropertyList List(const DisplayWords& words) const { return {list, words, 100}; }

    CZtPropertyList list;
};

TEST(PropertyList, TakesTheFirstElementOfANameOnce)
{
    const DisplayWords words;
    const Elements elements{new Element("radius", "", 1), new Element("Radius", "A", 2), new Element("Radius", "B", 3)};
    PropertyList list = elements.List(words);
    ConsumedProperties consumed;
    CZtVariant tag;
    EXPECT_EQ(list.TakeProperty("Radius", &consumed, &tag).GetInt32(), 2);
    EXPECT_EQ(tag.GetInt32(), 102);
    ASSERT_EQ(consumed.size(), 1u);
    EXPECT_EQ(list.TakeDouble("Radius", 7.0), 3.0);
    EXPECT_EQ(list.TakeDouble("Radius", 7.0, &consumed), 7.0);
    EXPECT_TRUE(list.TakeProperty("Radius", &consumed, &tag).IsNull());
    EXPECT_EQ(consumed.size(), 1u);
    EXPECT_EQ(tag.GetInt32(), 102);
    EXPECT_FALSE(list.IsEmpty());
}

TEST(PropertyList, KnowsTheWordsOfTheUser)
{
    const German user;
    const DisplayWords words;
    const Elements elements{new Element("Halbmesser", "", 1), new Element("Radius", "", 2),
                            new Element("TAG1", "attribute", 3), new Element("TAG2", "BlockAttributes", 4)};
    PropertyList list = elements.List(words);
    EXPECT_EQ(list.TakeProperty("Radius").GetInt32(), 1);
    EXPECT_EQ(list.TakeProperty("Radius").GetInt32(), 2);
    // The group of block attributes is told by its word alone, in any case; the tag is the attribute's name.
    CZtVariant tag;
    EXPECT_TRUE(list.Holds("BlockAttributes"));
    EXPECT_EQ(list.TakeProperty("BlockAttributes", nullptr, &tag).GetInt32(), 3);
    EXPECT_EQ(tag.GetString().text(), QStringLiteral("TAG1"));
    EXPECT_FALSE(list.Holds("BlockAttributes"));
}

TEST(PropertyList, DropsConsumedOnesByNameAndGroup)
{
    const DisplayWords words;
    const Elements given{new Element("Start X", "Geometry", 1), new Element("Start Z", "", 3)};
    PropertyList taken = given.List(words);
    ConsumedProperties consumed;
    const OdGePoint3d point = taken.TakePoint("Start X", "Start Y", "Start Z", &consumed);
    EXPECT_EQ(point.x, 1.0);
    EXPECT_EQ(point.y, 0.0);
    EXPECT_EQ(point.z, 3.0);

    const Elements others{new Element("Start X", "geometry", 5), new Element("Start X", "Geometry", 6),
                          new Element("Start X", "Geometry", 7), new Element("Start Z", "Other", 8)};
    PropertyList list = others.List(words);
    list.DropConsumed(consumed);
    EXPECT_EQ(list.TakeProperty("Start X").GetInt32(), 5);
    EXPECT_EQ(list.TakeProperty("Start X").GetInt32(), 7);
    EXPECT_EQ(list.TakeProperty("Start Z").GetInt32(), 8);
}

} // namespace
