// Hyperlinks: what an address means, and the text that sets it.
#include "backends/cpp/converter.h"
#include "objects/hyperlink.h"
#include "objects/object_converter.h"
#include "support/process_state.h"

#include <gtest/gtest.h>

namespace
{

std::string Show(const char* address)
{
    const HyperLink link = ParseHyperLink(QString::fromUtf8(address), QString());
    const char* const kinds[] = {"place", "page", "mail"};
    return QStringLiteral("%1 <%2> <%3>")
        .arg(QLatin1String(kinds[static_cast<int>(link.kind)]), link.target, link.subject)
        .toStdString();
}

TEST(HyperLinks, AreToldApartByTheirAddress)
{
    EXPECT_EQ(Show("#View 1"), "place <#View 1> <>");
    EXPECT_EQ(Show("#abcde:x"), "place <#abcde:x> <>");
    EXPECT_EQ(Show("http://a.b/c?d=e"), "page <http://a.b/c?d=e> <>");
    EXPECT_EQ(Show("mailto"), "page <mailto> <>");
    EXPECT_EQ(Show(""), "page <> <>");
    EXPECT_EQ(Show("mailto:a@b.c?subject=Hello = you"), "mail <a@b.c> <Hello = you>");
    EXPECT_EQ(Show("mailto:a@b.c"), "mail <a@b.c> <>");
    EXPECT_EQ(Show("abcdef:to"), "mail <to> <>");
}

TEST(HyperLinks, AreSetOnTheirVariable)
{
    ResetProcessState();
    CZtConverterKVAPICPP converter(1);
    converter.Counters().IndentLevel = 1;
    CZtConverterKVAPIObject& objects = converter.ObjectConverter();
    const auto set = [&](const char* address)
    {
        return objects.SetHyperLink(QStringLiteral("kvb1"), QString::fromUtf8(address), QStringLiteral("Note"))
            .toStdString();
    };
    EXPECT_EQ(set("#View"), "    kvHyperLink_ptr *hyperLink0 = kvb1->GetHyperLink();\n"
                            "    hyperLink0->put_Description(L\"Note\");\n"
                            "    hyperLink0->SetPlaceInThisDrawing( L\"#View\");\n"
                            "    kvb1->SetHyperLink(hyperLink0);\n");
    EXPECT_EQ(set("a.htm"), "    kvHyperLink_ptr *hyperLink1 = kvb1->GetHyperLink();\n"
                            "    hyperLink1->put_Description(L\"Note\");\n"
                            "    hyperLink1->SetFileOrWebPage( L\"a.htm\", L\"a.htm\");\n"
                            "    kvb1->SetHyperLink(hyperLink1);\n");
    EXPECT_EQ(set("mailto:a@b?subject=Hi"), "    kvHyperLink_ptr *hyperLink2 = kvb1->GetHyperLink();\n"
                                            "    hyperLink2->put_Description(L\"Note\");\n"
                                            "    hyperLink2->SetEmailAddress( L\"a@b\", L\"Hi\");\n"
                                            "    kvb1->SetHyperLink(hyperLink2);\n");
}

} // namespace
