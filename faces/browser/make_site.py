#!/usr/bin/env python3
"""Puts the page together from its parts: make_site.py SOURCE BUILD SITE.

Every file of the site is static. Beside each that is worth it lies a form compressed by brotli, for
servers that hand such files out.
"""
import hashlib
import json
import pathlib
import re
import shutil
import string
import subprocess
import sys

COMPRESSED = {".html", ".js", ".css", ".json", ".wasm", ".svg", ".webmanifest", ".wav"}
ICONS = [192, 512]


def small_drawing(text):
    """A drawing without blanks between its parts, stretched to whatever place it is given."""
    text = re.sub(r">\s+<", "><", text).strip()
    text = re.sub(r"\s+", " ", text)
    return text.replace("<svg ", '<svg preserveAspectRatio="none" ', 1)


def read_colors(header):
    """The colours by name, as a style sheet writes them."""
    colors = re.findall(r"^constexpr Color (\w+) = 0x([0-9a-f]{6});", header.read_text(), re.M)
    return {name: f"#{color}" for name, color in colors}


def write_pages(pages, colors, site):
    """Scripts and the style sheet get small. The modules that the page starts with become one file;
    what is fetched later stays by itself. A $ and a name stand for a colour."""
    for page in pages.iterdir():
        if page.suffix != ".js":
            (site / page.name).write_text(string.Template(page.read_text()).substitute(colors))
    esbuild = ["esbuild", "--minify", "--log-level=warning", f"--outdir={site}"]
    sheets = [site / "style.css", site / "commands.css"]
    subprocess.run([*esbuild, "--allow-overwrite", *sheets], check=True)
    subprocess.run([*esbuild, pages / "start.js", pages / "worker.js"], check=True)
    subprocess.run([*esbuild, "--bundle", "--format=esm", "--external:./commands.js",
                    pages / "main.js", pages / "commands.js"], check=True)


def write_pictures(assets, site):
    """Those of the first window come ahead of the others."""
    drawings = {p.name: small_drawing(p.read_text()) for p in sorted(assets.glob("*-*.svg"))}
    first = {name: drawing for name, drawing in drawings.items() if name.startswith("gst-")}
    later = {name: drawing for name, drawing in drawings.items() if name not in first}
    for file, some in [("first-pictures.json", first), ("pictures.json", later)]:
        (site / file).write_text(json.dumps(some, separators=(",", ":")))
    icon = assets / "zelvo.svg"
    shutil.copy(icon, site / "icon.svg")
    for size in ICONS:
        subprocess.run(["rsvg-convert", "-w", str(size), "-h", str(size), icon,
                        "-o", site / f"icon-{size}.png"], check=True)


def write_sounds(assets, site):
    (site / "sounds").mkdir()
    for sound in assets.iterdir():
        if sound.suffix.lower() == ".wav":
            shutil.copy(sound, site / "sounds" / sound.name)


def write_worker(site):
    """The worker's version is that of all files, so that any change is a new version."""
    files = sorted(str(p.relative_to(site)) for p in site.rglob("*")
                   if p.is_file() and p.name != "worker.js")
    contents = hashlib.sha256()
    for file in files:
        contents.update(file.encode() + b"\0" + (site / file).read_bytes())
    worker = site / "worker.js"
    text = worker.read_text().replace('"VERSION"', f'"{contents.hexdigest()[:12]}"')
    files = [file for file in files if file != "index.html"]
    worker.write_text(text.replace('["FILES"]', json.dumps([".", *files])))


def compress(site):
    small = [str(p) for p in site.rglob("*") if p.suffix.lower() in COMPRESSED]
    subprocess.run(["brotli", "--best", "--force", "--keep", *small], check=True)


def main():
    source, build, final = map(pathlib.Path, sys.argv[1:])
    site = final.with_name(final.name + ".new")
    shutil.rmtree(site, ignore_errors=True)
    site.mkdir(parents=True)
    write_pages(source / "faces/browser/page", read_colors(source / "surface/colors.h"), site)
    write_pictures(source / "assets/pictures", site)
    write_sounds(source / "assets/sounds", site)
    for program in ["zelvo.wasm", "zelvo-asyncify.wasm"]:
        shutil.copy(build / program, site / program)
    write_worker(site)
    compress(site)
    shutil.rmtree(final, ignore_errors=True)
    site.rename(final)


main()
