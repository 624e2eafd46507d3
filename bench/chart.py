"""Draws the charts of the document as SVG."""

import html
import math
import statistics

import measure
import report

WIDTH = 960
COLOURS = {"reached": "#3b76af", "undecided": "#8c8c8c", "missed": "#c8553d", "": "#8c8c8c"}
LINES = ("#3b76af", "#e08e2b", "#5a9a5a")


def text(x, y, content, anchor="start", size=13, colour="#222"):
    return (f'<text x="{x:.1f}" y="{y:.1f}" text-anchor="{anchor}" font-size="{size}" '
            f'fill="{colour}">{html.escape(content.replace("`", ""))}</text>')


def stroke(x1, y1, x2, y2, colour="#222", width=1.0, dash=""):
    dashes = f' stroke-dasharray="{dash}"' if dash else ""
    return (f'<line x1="{x1:.1f}" y1="{y1:.1f}" x2="{x2:.1f}" y2="{y2:.1f}" stroke="{colour}" '
            f'stroke-width="{width}"{dashes}/>')


def document(height, title, shapes):
    return "\n".join([
        f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {height}" '
        'font-family="sans-serif">', f"<title>{html.escape(title)}</title>",
        f'<rect width="{WIDTH}" height="{height}" fill="#fff"/>', *shapes, "</svg>", ""])


def ratio_bar(result, y, at):
    """A bar for the median, a thin line for the quartiles and a mark for the limit."""
    low, middle, high = measure.quartiles(result.ratios)
    limit = at(result.row.limit)
    return [
        text(at(0) - 10, y + 9, result.row.what, "end"),
        text(at(0) - 10, y + 24, f"beside {result.row.beside}", "end", 10, "#666"),
        f'<rect x="{at(0):.1f}" y="{y}" width="{at(middle) - at(0):.1f}" height="22" '
        f'fill="{COLOURS[result.verdict]}"/>',
        stroke(at(low), y + 11, at(high), y + 11, width=1.5),
        stroke(limit, y - 4, limit, y + 26, width=2.5),
        text(WIDTH - 10, y + 16, f"{middle:.2f}, at most {result.row.limit:.2f}", "end", 12),
    ]


def ratios(results):
    left, right, top, step = 430, 130, 60, 38
    largest = max(max(measure.quartiles(result.ratios)[2], result.row.limit) for result in results)

    def at(ratio):
        return left + ratio / largest * (WIDTH - left - right)

    bottom = top + step * len(results)
    shapes = [text(10, 24, "What we take, divided by what the peer takes", size=16),
              text(10, 42, "bar: the median; thin line: the quartiles; mark: the limit, which is reached "
                   "(blue), missed (red) or undecided (grey)", size=11, colour="#666")]
    for tick in range(int(largest * 4) + 1):
        shapes += [stroke(at(tick / 4), top - 8, at(tick / 4), bottom, "#ddd"),
                   text(at(tick / 4), bottom + 16, f"{tick / 4:g}", "middle", 11, "#666")]
    for i, result in enumerate(results):
        shapes += ratio_bar(result, top + step * i, at)
    return document(bottom + 30, "Ratios of the launcher to its peers", shapes)


def grid(highest):
    """Round values from 0 to the first one above the highest."""
    power = 10 ** math.floor(math.log10(highest / 3))
    step = next(factor * power for factor in (1, 2, 5, 10) if factor * power * 4 > highest)
    return [step * i for i in range(math.floor(highest / step) + 2)]


def panel(results, x, title):
    """A line for each result: its medians by size, on a logarithmic axis."""
    sizes, unit = results[0].table.sizes, results[0].series.unit
    width, top, bottom = WIDTH / 2 - 100, 70, 300
    values = grid(max(max(result.medians) for result in results))

    def place(size, value):
        share = math.log(size / sizes[0]) / math.log(sizes[-1] / sizes[0])
        return x + share * width, bottom - value / values[-1] * (bottom - top)

    shapes = [text(x - 60, 30, title, size=15)]
    for value in values:
        _, y = place(sizes[0], value)
        label = report.figure(value, unit) if value else "0"
        shapes += [stroke(x, y, x + width, y, "#ddd"), text(x - 8, y + 4, label, "end", 11, "#666")]
    for size in sizes:
        shapes.append(text(place(size, 0)[0], bottom + 18, f"{size:,}", "middle", 11, "#666"))
    shapes.append(text(x + width / 2, bottom + 36, results[0].table.noun, "middle", 12, "#666"))
    for i, (result, colour) in enumerate(zip(results, LINES)):
        points = [place(size, statistics.median(result.values[size])) for size in sizes]
        path = " ".join(f"{px:.1f},{py:.1f}" for px, py in points)
        shapes.append(f'<polyline points="{path}" fill="none" stroke="{colour}" '
                      'stroke-width="2.5"/>')
        shapes.append(text(x, bottom + 58 + 17 * i, f"— {result.series.what}", colour=colour))
    return shapes


def growth(results):
    times = [result for result in results if result.series.unit == "s"]
    memory = [result for result in results if result.series.unit == "B"]
    return document(400, "Time for an entry and peak memory by the number of entries",
                    [*panel(times, 75, "Time for an entry"),
                     *panel(memory, WIDTH / 2 + 75, "Peak memory of an upgrade")])
