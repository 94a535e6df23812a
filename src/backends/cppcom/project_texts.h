// The files of the server project around a C++ COM macro, each as a text.
#pragma once

#include <QtCore/QString>

namespace cppcom
{

// connection_files.cpp: the class that connects to the application, and the class of the macro's command.
[[nodiscard]] QString ConnectionHeader(const QString& macroName);
[[nodiscard]] QString ConnectionSource();
[[nodiscard]] QString CommandHeader();

// support_headers.cpp: what the macro needs beside the type libraries.
[[nodiscard]] QString PrecompiledHeader();
[[nodiscard]] QString PrecompiledSource();
[[nodiscard]] QString SafeArrayHeader();
[[nodiscard]] QString TypeConverterHeader();

// server_files.cpp: interface, registration, exports and resources of the server.
[[nodiscard]] QString InterfaceDefinition(const QString& macroName);
[[nodiscard]] QString ClassRegistration(const QString& macroName);
[[nodiscard]] QString ApplicationRegistration(const QString& macroName);
[[nodiscard]] QString ModuleDefinition(const QString& macroName);
[[nodiscard]] QString ProxyDefinition(const QString& macroName);
[[nodiscard]] QString ResourceNumbers(const QString& macroName);
[[nodiscard]] QString ResourceScript(const QString& macroName);

} // namespace cppcom
