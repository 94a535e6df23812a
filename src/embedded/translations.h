// The words of the user's language, as the application's translations give them.
#pragma once

#include <QtCore/QHash>
#include <QtCore/QTranslator>

namespace kv
{
class Translations final : public QTranslator
{
public:
    // The word of a context; one given before is replaced.
    void add(const QString& context, const QString& source, const QString& word);

    // A word that isn't there is null, so that Qt goes on to the next translator or the word itself.
    QString translate(const char* context, const char* source, const char* disambiguation, int n) const override;
    bool isEmpty() const override { return words_.isEmpty(); }

private:
    QHash<QPair<QString, QString>, QString> words_;
};
} // namespace kv
