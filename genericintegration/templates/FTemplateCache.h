#pragma once

/**
 * Base of what a reader or writer keeps with a template, or with the owner of templates, from one call to the next. A
 * cache never changes a result; whoever keeps one checks that it still fits.
 */
class FTemplateCache {
 public:
    virtual ~FTemplateCache() = default;
};
