#pragma once

#include <QByteArray>
#include <QFile>

#include <memory>
#include <string_view>

#include "genericintegration/io/FMappingGuard.h"

/**
 * The bytes of a file, from its begin to where it ended when this object was made.
 *
 * A small file is read. A large one is mapped: that takes no memory of the heap and no time beforehand, but its bytes
 * may change while another program writes them. Whatever happens to the file, they can be read; what was cut off may
 * read as zeros. It can be moved, not copied; the view stays.
 */
class FFileBytes {
 public:
    /** Files of this size or more are mapped. */
    static constexpr qint64 MappedSize = 1 << 20;

    /** Bytes that were read already. */
    FFileBytes(const QByteArray& bytes);

    /** The file is open for reading, at its begin. */
    explicit FFileBytes(std::unique_ptr<QFile> file);

    FFileBytes(FFileBytes&&) = default;
    FFileBytes& operator=(FFileBytes&&) = default;
    ~FFileBytes() = default;
    Q_DISABLE_COPY(FFileBytes)

    std::string_view view() const { return mView; }

    /** False once the file is shorter than what was mapped of it. */
    bool isWhole() const;

 private:
    bool map();

    std::unique_ptr<QFile> mFile;  //!< while it is mapped
    std::unique_ptr<FMappingGuard> mGuard;
    QByteArray mRead;
    std::string_view mView;
};
