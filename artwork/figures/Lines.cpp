#include "Lines.h"

namespace figures {
namespace {

constexpr int objectKey = 32 * (static_cast<int>(Group::Object) + 1);

/// Second difference of the depth along one direction: positive on the near side of an edge.
float step(const SampleMap& m, int x, int y, int dx, int dy) {
    const float d = m.at(x, y).depth;
    const auto side = [&](int sx, int sy) {
        if (sx < 0 || sy < 0 || sx >= m.width || sy >= m.height)
            return 0.0F;
        return std::clamp(m.at(sx, sy).depth - d, -40.0F, 40.0F);
    };
    return side(x - dx, y - dy) + side(x + dx, y + dy);
}

} // namespace

void Lines::draw(SampleMap& picture, int fine) {
    std::vector<float> strength(picture.samples.size(), 0.0F);
    const int wide = (fine * 9 + 4) / 5; // outline
    const int thin = std::max(1, fine / 2);
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            const Sample& s = picture.at(x, y);
            if (qAlpha(s.colour) == 0)
                continue;
            const bool object = s.key >= objectKey;
            float near = 0;
            float crease = 0;
            for (const auto& [dx, dy] : {std::pair{1, 0}, std::pair{0, 1}}) {
                near = std::max(near, step(picture, x, y, dx * wide, dy * wide));
                crease = std::max(crease, std::fabs(step(picture, x, y, dx * thin, dy * thin)));
            }
            const int diagonal = std::max(1, wide * 7 / 10);
            near = std::max(
                {near, step(picture, x, y, diagonal, diagonal), step(picture, x, y, diagonal, -diagonal)});
            float line = smoothstep(2.5F, 6.0F, near);
            line = std::max(line, 0.75F * smoothstep(0.35F, 1.3F, crease));
            bool border = false;
            for (int dy = -thin; dy <= thin && !border; dy += thin) {
                for (int dx = -thin; dx <= thin; dx += thin) {
                    if (x + dx >= 0 && y + dy >= 0 && x + dx < picture.width && y + dy < picture.height) {
                        const Sample& o = picture.at(x + dx, y + dy);
                        border = border || (qAlpha(o.colour) != 0 && o.key != s.key);
                    }
                }
            }
            if (border)
                line = std::max(line, 0.55F);
            strength[static_cast<std::size_t>(y) * static_cast<std::size_t>(picture.width) +
                     static_cast<std::size_t>(x)] = line * (object ? 0.62F : 0.86F);
        }
    }
    for (std::size_t i = 0; i < strength.size(); ++i) {
        Sample& s = picture.samples[i];
        if (strength[i] > 0.01F) {
            const auto dark = [&](int c, int ink) {
                return static_cast<int>(
                    std::lround(static_cast<float>(c) * (1 - strength[i]) +
                                (static_cast<float>(c) * 0.22F + static_cast<float>(ink)) * strength[i]));
            };
            s.colour =
                qRgba(dark(qRed(s.colour), 14), dark(qGreen(s.colour), 16), dark(qBlue(s.colour), 28), 255);
        }
        if (s.key >= objectKey)
            s.key |= 0x8000; // the ghost may be laid over things, never over the body
    }
}

void Lines::reduce(const SampleMap& picture, int fine, QImage& image) {
    const int n = fine * fine * 255;
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            int r = 0;
            int g = 0;
            int b = 0;
            int a = 0;
            for (int sy = 0; sy < fine; ++sy) {
                for (int sx = 0; sx < fine; ++sx) {
                    const QRgb c = picture.at(x * fine + sx, y * fine + sy).colour;
                    r += qRed(c) * qAlpha(c);
                    g += qGreen(c) * qAlpha(c);
                    b += qBlue(c) * qAlpha(c);
                    a += qAlpha(c);
                }
            }
            if (a > 0) {
                const auto over = [n, a](int sum, int below) { return (sum + below * (n - a)) / n; };
                line[x] = qRgb(over(r, qRed(line[x])), over(g, qGreen(line[x])), over(b, qBlue(line[x])));
            }
        }
    }
}

} // namespace figures
