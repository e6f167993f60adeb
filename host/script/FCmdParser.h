#pragma once

#include "host/core/FExport.h"
#include "host/core/FManaged.h"

/** The reader of the script that is being executed, which commands report to. */
class MERIX_EXPORT FCmdParser {
 public:
    /** The one being executed, the innermost; null if there is none. */
    static FCmdParser* currentParser();

    virtual ~FCmdParser() = default;

    /** A creator has made an object. */
    virtual void addObject(const FExpr<FManaged>& object) { Q_UNUSED(object) }

 protected:
    /** Makes a parser the current one for the life of the object. */
    class Activation {
     public:
        explicit Activation(FCmdParser* parser);
        ~Activation();
        Activation(const Activation&) = delete;
        Activation& operator=(const Activation&) = delete;

     private:
        FCmdParser* mpBefore;
    };
};
