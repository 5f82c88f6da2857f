#!/usr/bin/env python3
"""Makes an MSI package that installs a folder as it stands.

All its identities follow from the version and the content, and all its times are
SOURCE_DATE_EPOCH, so that the same folder gives the same package.
"""

import argparse
import datetime
import hashlib
import os
import pathlib
import subprocess
import uuid
from xml.etree import ElementTree

# All identities of this product's packages derive from this one; it must never change.
NAMESPACE = uuid.UUID("6a0c2f0e-6b3c-4d0b-9d5e-0f7f3f1e7b52")
PROGRAM_FILES = {"x86": "ProgramFilesFolder", "x64": "ProgramFiles64Folder"}


def identity(*words):
    return str(uuid.uuid5(NAMESPACE, "/".join(words))).upper()


def name_of(kind, path):
    """An identifier that Windows Installer takes, whatever the path's characters and length."""
    return kind + uuid.uuid5(NAMESPACE, path.as_posix()).hex


def add_folder(parent, feature, folder, path, arch):
    for entry in sorted((folder / path).iterdir()):
        inside = path / entry.name
        if entry.is_dir():
            directory = ElementTree.SubElement(parent, "Directory", Id=name_of("d", inside), Name=entry.name)
            add_folder(directory, feature, folder, inside, arch)
        else:
            component = ElementTree.SubElement(
                parent, "Component", Id=name_of("c", inside), Guid=identity(arch, inside.as_posix()))
            if arch == "x64":
                component.set("Win64", "yes")
            ElementTree.SubElement(
                component, "File", Id=name_of("f", inside), Name=entry.name, Source=inside.as_posix(), KeyPath="yes")
            ElementTree.SubElement(feature, "ComponentRef", Id=component.get("Id"))


def content_digest(folder):
    digest = hashlib.sha256()
    for file in sorted(path for path in folder.rglob("*") if path.is_file()):
        digest.update(f"{file.relative_to(folder).as_posix()}\0{file.stat().st_size}\0".encode())
        digest.update(file.read_bytes())
    return digest.hexdigest()


def description(folder, version, name, arch):
    root = ElementTree.Element("Wix", xmlns="http://schemas.microsoft.com/wix/2006/wi")
    product = ElementTree.SubElement(
        root, "Product", Id=identity("product", arch, version), UpgradeCode=identity("upgrade", arch),
        Name=name, Manufacturer="Merovane", Version=version, Language="1033")
    ElementTree.SubElement(
        product, "Package", InstallerVersion="200", Compressed="yes", InstallScope="perMachine")
    ElementTree.SubElement(product, "Media", Id="1", Cabinet="merovane.cab", EmbedCab="yes")
    upgrade = ElementTree.SubElement(product, "MajorUpgrade")
    upgrade.set("DowngradeErrorMessage", "A newer version is installed.")
    target = ElementTree.SubElement(product, "Directory", Id="TARGETDIR", Name="SourceDir")
    programs = ElementTree.SubElement(target, "Directory", Id=PROGRAM_FILES[arch])
    installed = ElementTree.SubElement(programs, "Directory", Id="INSTALLDIR", Name="Merovane")
    feature = ElementTree.SubElement(product, "Feature", Id="Complete", Level="1", Title="Merovane")
    add_folder(installed, feature, folder, pathlib.Path(), arch)
    return ElementTree.tostring(root, encoding="unicode")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--version", required=True)
    parser.add_argument("--arch", required=True, choices=("x86", "x64"))
    parser.add_argument("folder", type=pathlib.Path)
    parser.add_argument("package", type=pathlib.Path)
    options = parser.parse_args()

    epoch = int(os.environ["SOURCE_DATE_EPOCH"])
    for path in options.folder.rglob("*"):
        os.utime(path, (epoch, epoch))
    package = options.package.resolve()
    bits = {"x86": "32", "x64": "64"}[options.arch]
    name = f"Merovane ({bits}-bit)"

    def run(*command):
        clock = datetime.datetime.fromtimestamp(epoch, datetime.timezone.utc).strftime("%Y-%m-%d %H:%M:%S")
        subprocess.run(["faketime", "-f", clock, *command], cwd=options.folder, check=True,
                       env={**os.environ, "TZ": "UTC"})

    source = package.with_suffix(".wxs")
    source.write_text(description(options.folder, options.version, name, options.arch))
    # It finds the files from where it runs.
    run("wixl", "-a", options.arch, "-o", package, source)
    source.unlink()
    # The package's own identity, which wixl draws by lot.
    template = {"x86": "Intel;1033", "x64": "x64;1033"}[options.arch]
    code = identity("package", options.arch, options.version, content_digest(options.folder))
    run("msibuild", package, "-s", name, "Merovane", template, f"{{{code}}}")


if __name__ == "__main__":
    main()
