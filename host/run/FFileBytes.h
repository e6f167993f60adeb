#pragma once

#include "host/core/FExport.h"
#include "host/run/FMappingGuard.h"

#include <QByteArray>
#include <QFile>

#include <memory>
#include <string_view>

/**
 * The bytes of a file, up to its size at construction.
 *
 * A small file is read into memory. A large one is mapped, which needs no heap memory and no time in advance, but its
 * bytes may change while another program writes the file. They stay readable whatever happens to the file; a part that
 * was truncated may read as zeros. Objects can be moved, not copied; the view stays valid.
 */
class MERIX_EXPORT FFileBytes {
 public:
    /** Files of this size in bytes or more are mapped. */
    static constexpr qint64 mappedSize = 1 << 20;

    /** Bytes that are already in memory. */
    FFileBytes(const QByteArray& bytes);

    /** The file must be open for reading, at its start. */
    explicit FFileBytes(std::unique_ptr<QFile> file);

    FFileBytes(FFileBytes&&) = default;
    FFileBytes& operator=(FFileBytes&&) = default;
    ~FFileBytes() = default;
    Q_DISABLE_COPY(FFileBytes)

    std::string_view view() const { return mView; }

    /** False if the file has become shorter than its mapping. */
    bool isWhole() const;

 private:
    bool map();

    std::unique_ptr<QFile> mFile;  //!< null unless mapped
    std::unique_ptr<FMappingGuard> mGuard;
    QByteArray mRead;
    std::string_view mView;
};
