// The loops over colour planes, in terms of the vectors of the file that includes this one: Ints, Floats and Doubles of
// as many lanes as a register has, and the pixels of a group, a quarter of them at a time.
//
// A group's bytes are all read before its first one is written, so both planes can be the same.

inline Ints RedOf(Ints pixels) { return (pixels >> 16) & Same(0xFF); }
inline Ints GreenOf(Ints pixels) { return (pixels >> 8) & Same(0xFF); }
inline Ints BlueOf(Ints pixels) { return pixels & Same(0xFF); }

/// The number of whole groups' pixels that can be loaded without reading behind the plane.
inline std::size_t PixelsInGroups(std::size_t pixels) {
    constexpr std::size_t readBehind = 2;
    return pixels < readBehind ? 0 : (pixels - readBehind) / groupPixels * groupPixels;
}

// To hue, saturation, lightness

/// A pixel's components, and those that its hue depends on.
struct Components {
    Ints red, green, blue, max, min;
    Ints isRed, isGreen;       ///< which one is the largest, red before green before blue
    Ints minuend, subtrahend;  ///< the two others

    explicit Components(Ints pixels) : red(RedOf(pixels)), green(GreenOf(pixels)), blue(BlueOf(pixels)) {
        max = Max16(Max16(red, green), blue);
        min = Min16(Min16(red, green), blue);
        isRed = red == max;
        isGreen = Without(green == max, isRed);
        minuend = Select(isRed, green, Select(isGreen, blue, red));
        subtrahend = Select(isRed, blue, Select(isGreen, red, green));
    }
    Ints ByLargest(int ofRed, int ofGreen, int ofBlue) const {
        return Select(isRed, Same(ofRed), Select(isGreen, Same(ofGreen), Same(ofBlue)));
    }
};

inline Doubles HueInDouble(Doubles minuend, Doubles subtrahend, Doubles max, Doubles min, Doubles shift) {
    const Doubles unit = SameDouble(1.0 / 255);
    const Doubles sextant = (minuend * unit - subtrahend * unit) / (max * unit - min * unit) + shift;
    const Doubles degrees = sextant * SameDouble(60.0);
    return (degrees + WhereNegative(degrees, SameDouble(360.0))) * SameDouble(0.6666666666666667);
}

inline Ints HueInDouble(const Components& c) {
    const Ints shift = c.ByLargest(0, 2, 4);
    return Truncated(
        HueInDouble(LowHalf(c.minuend), LowHalf(c.subtrahend), LowHalf(c.max), LowHalf(c.min), LowHalf(shift)),
        HueInDouble(HighHalf(c.minuend), HighHalf(c.subtrahend), HighHalf(c.max), HighHalf(c.min), HighHalf(shift)));
}

/// The hue is 40 n / range plus a share of 240, truncated. A quotient of these integers in single precision truncates
/// as the exact one does, and it is an integer only when the exact one is. There double precision can fall short of it,
/// except for the differences 0 and range, of which it makes no error: the other lanes are doubtful.
inline Ints HueOf(const Components& c, Ints& isDoubtful) {
    const Ints range = c.max - c.min, n = c.minuend - c.subtrahend;
    const Ints turn = c.ByLargest(0, 80, 160) | (c.isRed & SignOf(n) & Same(240));
    const Ints numerator = SumOfProducts16((n & Same(0xFFFF)) | range << 16, Same(40) | turn << 16);
    const Floats quotient = ToFloats(numerator) / ToFloats(Max16(range, Same(1)));
    const Ints hue = Truncated(quotient);
    isDoubtful = Without(ToFloats(hue) == quotient, (n == Same(0)) | (n == range) | (n + range == Same(0)));
    return hue;
}

/// Pixels of some groups whose hues are doubtful. They are gathered and corrected many at once, as a branch for every
/// few pixels costs more than the conversion.
class DoubtfulHues {
public:
    static constexpr std::size_t mostGroups = 64;

    void Add(std::size_t group, int quarter, Ints groupPixelsTaken, Ints isDoubtful) {
        StoreLanes(pixels + group * groupPixels, quarter, groupPixelsTaken);
        lanes[group * 4 + static_cast<std::size_t>(quarter)] = static_cast<std::uint8_t>(LaneBits(isDoubtful));
    }

    /// In a plane that begins with the first group.
    void Correct(std::size_t groups, std::uint8_t* hsl) {
        const std::size_t count = List(groups);
        for (std::size_t i = 0; i < count; i += intLanes) {
            std::uint32_t hues[intLanes];
            StoreInts(hues, HueInDouble(Components(LoadInts(listed + i))));
            for (std::size_t k = 0; k < intLanes && i + k < count; ++k)
                hsl[places[i + k] * PlaneBytesPerPixel + 2] = static_cast<std::uint8_t>(hues[k]);
        }
    }

private:
    std::size_t List(std::size_t groups) {
        std::size_t count = 0;
        for (std::size_t i = 0; i < groups * 4; ++i)
            for (unsigned bits = lanes[i]; bits != 0; bits &= bits - 1) {
                const int inGroup = PixelOf(static_cast<int>(i % 4), std::countr_zero(bits));
                const std::size_t place = i / 4 * groupPixels + static_cast<std::size_t>(inGroup);
                places[count] = static_cast<std::uint16_t>(place);
                listed[count++] = pixels[place];
            }
        // The last vector is filled up.
        std::fill_n(listed + count, intLanes, 0u);
        return count;
    }

    static constexpr std::size_t mostPixels = mostGroups * groupPixels;
    std::uint32_t pixels[mostPixels];
    std::uint8_t lanes[mostGroups * 4];
    std::uint32_t listed[mostPixels + intLanes];
    std::uint16_t places[mostPixels];
};

std::size_t ConvertGroupsToHsl(const std::uint8_t* rgb, std::uint8_t* hsl, std::size_t pixels,
                               const LightnessTable& table) {
    const std::size_t groups = PixelsInGroups(pixels) / groupPixels;
    DoubtfulHues doubtfulHues;
    for (std::size_t first = 0; first < groups; first += DoubtfulHues::mostGroups) {
        const std::size_t count = std::min(DoubtfulHues::mostGroups, groups - first);
        std::uint8_t* const target = hsl;
        for (std::size_t group = 0; group < count; ++group) {
            ReadAhead(rgb);
            Ints converted[4];
            for (int quarter = 0; quarter < 4; ++quarter) {
                const Ints taken = LoadPixels(rgb, quarter);
                const Components components(taken);
                Ints isDoubtful;
                const Ints hue = HueOf(components, isDoubtful);
                converted[quarter] = hue << 16 | LookUp(table, components.max << 8 | components.min);
                doubtfulHues.Add(group, quarter, taken, isDoubtful);
            }
            StoreBytes(hsl, PackGroup(converted));
            rgb += groupPixels * PlaneBytesPerPixel;
            hsl += groupPixels * PlaneBytesPerPixel;
        }
        doubtfulHues.Correct(count, target);
    }
    return groups * groupPixels;
}

// To red, green, blue

/// One component: floor of 17 (4800 lightness + saturation * min(lightness, 240 - lightness) * (k - 20)) / 76800, where
/// k rises from 0 to 40 over 60 degrees of hue, stays, and falls again. `turn` is the component's hue in steps of 1.5
/// degrees, `factors` saturation * min(...) and, 16 bits up, 8 * lightness. Where the division leaves no remainder the
/// rounding of the double computation decides: those lanes are added to `isDoubtful`.
inline Ints ComponentOf(Ints turn, Ints factors, Ints& isDoubtful) {
    const Ints k = Max16(Min16(Min16(turn, Same(160) - turn), Same(40)), Same(0));
    const Ints product =
        SumOfProducts16(factors, Add16(Multiply16(k & Same(0xFFFF), Same(17)), Same(10200 << 16 | (-340 & 0xFFFF))));
    // Never below the floor, and seldom one above it.
    const Ints quotient = Truncated(ToFloats(product) * SameFloat(1.0000003F / 76800));
    const Ints remainder = product - SumOfProducts16(quotient << 3, Same(9600));
    isDoubtful = isDoubtful | (remainder == Same(0));
    return quotient + SignOf(remainder);
}

inline Ints PixelsInRgb(Ints hslPixels, Ints& isDoubtful) {
    const Ints hue = RedOf(hslPixels), saturation = GreenOf(hslPixels), lightness = BlueOf(hslPixels);
    const Ints factors = Multiply16(saturation, Min16(lightness, Same(240) - lightness)) | lightness << 19;
    const Ints ahead = hue + Same(80), behind = hue - Same(80);
    const Ints red = ComponentOf(ahead - ((ahead > Same(240)) & Same(240)), factors, isDoubtful);
    const Ints green = ComponentOf(hue, factors, isDoubtful);
    const Ints blue = ComponentOf(behind + (SignOf(behind) & Same(240)), factors, isDoubtful);
    // Of grays and black the double computation makes no error.
    isDoubtful = Without(isDoubtful, (saturation == Same(0)) | (lightness == Same(0)));
    return red << 16 | green << 8 | blue;
}

std::size_t ConvertGroupsToRgb(const std::uint8_t* hsl, std::uint8_t* rgb, std::size_t pixels, bool clips) {
    const Ints largest = Same(LargestHslValue << 16 | LargestHslValue << 8 | LargestHslValue | -0x1000000);
    const std::size_t whole = PixelsInGroups(pixels);
    for (std::size_t done = 0; done < whole; done += groupPixels) {
        Ints taken[4], converted[4], isDoubtful[4];
        Ints excess = Same(0), isAnyDoubtful = Same(0);
        for (int quarter = 0; quarter < 4; ++quarter) {
            const Ints loaded = LoadPixels(hsl, quarter);
            excess = excess | Excess8(loaded, largest);
            taken[quarter] = Min8(loaded, largest);
            isDoubtful[quarter] = Same(0);
            converted[quarter] = PixelsInRgb(taken[quarter], isDoubtful[quarter]);
            isAnyDoubtful = isAnyDoubtful | isDoubtful[quarter];
        }
        if (!clips && LaneBits(excess == Same(0)) != LaneBits(Same(-1))) return done;
        StoreBytes(rgb, PackGroup(converted));
        if (LaneBits(isAnyDoubtful) != 0) {
            for (int quarter = 0; quarter < 4; ++quarter) {
                std::uint32_t lanes[intLanes];
                StoreInts(lanes, taken[quarter]);
                for (unsigned bits = static_cast<unsigned>(LaneBits(isDoubtful[quarter])); bits != 0;
                     bits &= bits - 1) {
                    const int lane = std::countr_zero(bits);
                    std::uint8_t bytes[sizeof lanes[0]];
                    std::memcpy(bytes, &lanes[lane], sizeof bytes);
                    const PixelBytes exact = HslToRgb(HslAt(bytes));
                    std::memcpy(rgb + PixelOf(quarter, lane) * PlaneBytesPerPixel, exact.bytes, PlaneBytesPerPixel);
                }
            }
        }
        hsl += groupPixels * PlaneBytesPerPixel;
        rgb += groupPixels * PlaneBytesPerPixel;
    }
    return whole;
}

// Painting

inline Bytes RepeatedPixel(PixelBytes pixel) {
    std::uint8_t bytes[groupPixels * PlaneBytesPerPixel];
    for (std::size_t i = 0; i < groupPixels; ++i)
        std::memcpy(bytes + i * PlaneBytesPerPixel, pixel.bytes, PlaneBytesPerPixel);
    return LoadBytes(bytes);
}

/// What rules of luminance look at.
struct LuminanceKey {
    using Rule = LuminanceRule;
    Ints before, behind;

    void Set(const Rule& rule) {
        before = Same(rule.first - 1);
        behind = Same(rule.last + 1);
    }
    static Ints Of(Ints pixels) {
        const Ints blueAndRed = pixels & Same(0xFF00FF), green = HighBytes16(pixels);
        return SumOfProducts16(blueAndRed, Same(299 << 16 | 114)) + SumOfProducts16(green, Same(587));
    }
    Ints Has(Ints key) const { return (key > before) & (behind > key); }
};

/// What boxes look at: the pixels themselves.
struct BoxKey {
    using Rule = BoxRule;
    Ints low, high;

    void Set(const Rule& rule) {
        const auto joined = [&](std::uint8_t ByteBand::*end, int fourth) {
            return Same(rule.box[0].*end | rule.box[1].*end << 8 | rule.box[2].*end << 16 | fourth);
        };
        low = joined(&ByteBand::low, 0);
        high = joined(&ByteBand::high, -0x1000000);
    }
    static Ints Of(Ints pixels) { return pixels; }
    Ints Has(Ints key) const { return (Excess8(key, high) | Excess8(low, key)) == Same(0); }
};

template <class Key>
std::size_t PaintGroups(const std::uint8_t* source, std::uint8_t* target, std::size_t pixels,
                        std::span<const typename Key::Rule> rules) {
    Key keys[ColourLoops::mostRules];
    Bytes paints[ColourLoops::mostRules];
    const std::size_t count = rules.size();
    for (std::size_t i = 0; i < count; ++i) {
        keys[i].Set(rules[i]);
        paints[i] = RepeatedPixel(rules[i].paint);
    }
    const std::size_t whole = PixelsInGroups(pixels);
    for (const std::uint8_t* end = source + whole * PlaneBytesPerPixel; source != end;) {
        ReadAhead(source);
        Bytes bytes = LoadBytes(source);
        Ints found[4];
        for (int quarter = 0; quarter < 4; ++quarter) found[quarter] = Key::Of(LoadPixels(source, quarter));
        for (std::size_t i = 0; i < count; ++i) {
            const Ints masks[] = {keys[i].Has(found[0]), keys[i].Has(found[1]), keys[i].Has(found[2]),
                                  keys[i].Has(found[3])};
            bytes = Select(PackGroup(masks), paints[i], bytes);
        }
        StoreBytes(target, bytes);
        source += groupPixels * PlaneBytesPerPixel;
        target += groupPixels * PlaneBytesPerPixel;
    }
    return whole;
}
