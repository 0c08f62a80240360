#pragma once

#include <QString>
#include <QVariantList>

// The pages of the advanced menu that the user keeps out of sight. The list
// holds page names as the menu names them; the page compares them without
// regard to case, and so does removal, while adding compares exactly.
class FeaturesSettings
{
public:
    // An empty stored list means the default one: a user cannot keep every
    // page shown across a restart.
    explicit FeaturesSettings(const QVariantList& unused_pages);

    QVariantList get_unused_pages() const { return unused_pages; }
    void add_unused_page(const QString& page);
    void remove_unused_page(const QString& page);
    void clean_unused_pages();
    void restore_unused_pages_to_default();

    // "unused_pages.txt" in the working directory replaces the default list.
    static bool has_unused_pages_config();
    static QVariantList get_unused_pages_from_config_file();
    static QVariantList default_unused_pages();

private:
    QVariantList unused_pages;
};
