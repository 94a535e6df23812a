// Short journals for the tests of the embedded host.
#pragma once

#include "embedded/session.h"

#include <gtest/gtest.h>

#include <string>

namespace kv::testing
{
inline const std::string Head = R"({"journal":{"version":1}})";

// A session of the lines behind a head; fails the test when they have faults.
inline std::unique_ptr<Session> LoadLines(const std::string& lines, JournalDiagnostics* told = nullptr)
{
    JournalDiagnostics diagnostics;
    auto session = std::make_unique<Session>();
    const bool good = session->LoadText(QByteArray::fromStdString(Head + "\n" + lines), diagnostics);
    EXPECT_TRUE(good) << lines << "\n"
                      << FormatFaults(QStringLiteral("journal"), diagnostics).join(QLatin1Char('\n')).toStdString();
    if (told != nullptr)
    {
        *told = diagnostics;
    }
    return session;
}

// The faults of a whole text.
inline JournalDiagnostics FaultsOf(const std::string& text)
{
    JournalDiagnostics diagnostics;
    Session session;
    const bool good = session.LoadText(QByteArray::fromStdString(text), diagnostics);
    EXPECT_EQ(good, diagnostics.faultCount == 0) << text;
    EXPECT_TRUE(diagnostics.faultCount == 0 || session.Journal().isEmpty());
    return diagnostics;
}

// The event at an index of the session's journal as a class of events.
template <class Event>
OdSmartPtr<Event> EventAt(const Session& session, std::size_t index)
{
    return OdSmartPtr<Event>::cast(session.Journal()[index]);
}
} // namespace kv::testing
