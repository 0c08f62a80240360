#pragma once

#include <QString>
#include <cstdint>
#include <vector>

// The ramps one CRTC held when the backend started, and a fingerprint of
// what the backend wrote to it last.
struct KeptCrtcRamps
{
    unsigned int crtc = 0;
    unsigned int ramp_size = 0;
    std::vector<uint16_t> ramps; // red, green, blue; ramp_size entries each
    uint64_t last_written = 0;
};

// A small file that keeps the ramps found at start while the program runs,
// so that a run that died without giving them back can be repaired by the
// next one. One file per display, written atomically.
class RampCrashFile
{
public:
    enum class LoadResult { Missing, Loaded, Invalid };

    explicit RampCrashFile(QString path);

    // $XDG_RUNTIME_DIR (or the temp dir) / ovra-ramps-<display>.bin, where
    // <display> names the X display so that ":0" and ":0.0" share a file.
    static QString path_for_display(const char* display_name);

    // The fingerprint of a block of 3 * size entries, red, green, blue. A
    // CRTC still showing the block last written means nobody reset it since.
    static uint64_t fingerprint(const uint16_t* block, unsigned int size);

    const QString& path() const { return file_path; }

    // Temp file and rename, so a reader never sees half a file.
    bool write(const std::vector<KeptCrtcRamps>& crtcs) const;
    // The same contents over the file open on `fd`, in place: for the
    // fingerprints, which move every second while a transition runs. It has
    // the same length; a write torn by a kill shows as a bad checksum, and
    // the file is then only ignored.
    static bool write_in_place(int fd, const std::vector<KeptCrtcRamps>& crtcs);
    static QByteArray encode(const std::vector<KeptCrtcRamps>& crtcs);
    // Invalid comes with a short reason (bad magic, truncated, ...).
    LoadResult load(std::vector<KeptCrtcRamps>* crtcs, QString* reason) const;
    void remove() const;

private:
    QString file_path;
};
