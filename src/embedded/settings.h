// The settings of the application by the names of system variables.
#pragma once

#include "host/kernel/services.h"

#include <QtCore/QHash>
#include <QtCore/QVariant>

namespace kv
{
class Settings final : public CZtSystemSettings
{
public:
    // The language of macros, as in CZtSystemSettings::MacroLanguage.
    void setMacroLanguage(std::int16_t language) { macroLanguage_ = language; }

    // The value of a system variable; case doesn't count in its name. A value given before is replaced.
    void set(const QString& name, const QVariant& value) { values_.insert(name.toUpper(), value); }

    // The number of a system variable, given in upper case; 0 when it has none.
    [[nodiscard]] std::int16_t number(const QString& name) const
    {
        return static_cast<std::int16_t>(values_.value(name).toInt());
    }

    std::int16_t MacroLanguage() const override { return macroLanguage_; }
    std::int16_t ChamferMode() const override { return number(QStringLiteral("CHAMMODE")); }
    std::int16_t EdgeMode() const override { return number(QStringLiteral("EDGEMODE")); }
    std::int16_t TrimMode() const override { return number(QStringLiteral("TRIMMODE")); }

private:
    QHash<QString, QVariant> values_;
    std::int16_t macroLanguage_ = 0;
};
} // namespace kv
