// The backgrounds: the whole card is picture.
import { colours as c, dice, flower, leaf, star, times, sheet, upright, lying } from './tekenen.mjs';

function heuvels() {
  const roll = dice(5);
  const hill = (y, swell, fill) => `<path d="M0 ${y}C90 ${y - swell} 150 ${y + swell * 0.6} 240 ${y}S390 ${y - swell * 0.8} 440 ${y - swell * 0.2}V640H0Z" fill="${fill}"/>`;
  const tree = (x, y, s, fill) => `<path d="M${x} ${y}V${y - 14 * s}" stroke="#7d6248" stroke-width="${2.4 * s}"/><ellipse cx="${x}" cy="${y - 24 * s}" rx="${9 * s}" ry="${15 * s}" fill="${fill}"/>`;
  const blooms = times(120, () => {
    const y = 556 + roll() * 84;
    const [x, size] = [roll() * 440, (y - 520) / 24];
    return `<circle cx="${x.toFixed(1)}" cy="${y.toFixed(1)}" r="${size.toFixed(1)}" fill="${[c.terracotta, c.ochre, '#fffaf0', c.plum][Math.floor(roll() * 4)]}"/><circle cx="${x.toFixed(1)}" cy="${y.toFixed(1)}" r="${(size * 0.36).toFixed(1)}" fill="#7a5a36" opacity=".6"/>`;
  }).join('');
  const cloud = (x, y, s) => `<g transform="translate(${x} ${y}) scale(${s})" fill="#fff" opacity=".55"><ellipse cx="0" cy="0" rx="46" ry="12"/><ellipse cx="-14" cy="-9" rx="20" ry="13"/><ellipse cx="14" cy="-12" rx="24" ry="17"/></g>`;
  return '<linearGradient id="lucht" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#a9d0da"/><stop offset=".55" stop-color="#fbe3bf"/><stop offset="1" stop-color="#f6bf98"/></linearGradient>' +
    sheet(440, 640, 'url(#lucht)') + '<circle cx="316" cy="300" r="96" fill="#fff3cf" opacity=".35"/><circle cx="316" cy="300" r="66" fill="#fff3cf" opacity=".5"/><circle cx="316" cy="300" r="42" fill="#fbd98a"/>' +
    cloud(96, 110, 1.2) + cloud(350, 176, 0.9) + cloud(200, 230, 0.7) +
    hill(380, 46, '#b7c7ae') + hill(428, 54, '#9dba94') + tree(72, 412, 0.8, '#86a57e') + tree(92, 416, 1, '#7d9d76') + tree(380, 404, 0.9, '#86a57e') +
    hill(476, 40, '#84a67c') + tree(284, 486, 1.4, '#6a8f66') + tree(308, 484, 1.1, '#73986d') + tree(330, 480, 1.5, '#648a62') + hill(536, 34, '#6f9568') + blooms;
}

function zee() {
  const roll = dice(17);
  const wave = (y, fill, step, height) => `<path d="M${-step} ${y}${times(Math.ceil(640 / step) + 2, () => `q${step / 2} ${-height} ${step} 0`).join('')}V440H${-step}Z" fill="${fill}"/>`;
  const gull = (x, y, s) => `<path d="M${x - 10 * s} ${y - 4 * s}Q${x - 4 * s} ${y - 8 * s} ${x} ${y}Q${x + 4 * s} ${y - 8 * s} ${x + 10 * s} ${y - 4 * s}" fill="none" stroke="${c.ink}" stroke-opacity=".6" stroke-width="1.6"/>`;
  const boat = (x, y, s, sail) => `<g transform="translate(${x} ${y}) scale(${s})"><path d="M-40 0H44L30 18H-28Z" fill="#a65a3d"/><path d="M-36 5H41" stroke="#fff" stroke-width="2.4"/><path d="M0 0V-78" stroke="#6d4a33" stroke-width="3"/><path d="M4 -76Q34 -40 38 -8H4Z" fill="#fffaf0"/><path d="M-4 -70Q-26 -40 -30 -8H-4Z" fill="${sail}"/><path d="M0 -78L16 -73L0 -68Z" fill="${c.terracotta}"/></g>`;
  const shells = times(70, () => `<circle cx="${(roll() * 640).toFixed(1)}" cy="${(392 + roll() * 48).toFixed(1)}" r="${(0.8 + roll() * 1.6).toFixed(1)}" fill="#c9a067" opacity=".6"/>`).join('');
  return '<linearGradient id="hemel" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#8cc3d6"/><stop offset="1" stop-color="#fdf0d8"/></linearGradient>' + sheet(640, 440, 'url(#hemel)') +
    '<circle cx="120" cy="92" r="64" fill="#fff6d6" opacity=".4"/><circle cx="120" cy="92" r="38" fill="#fce09a"/>' + gull(300, 86, 1.2) + gull(342, 110, 0.9) + gull(262, 120, 0.8) + gull(520, 60, 1) +
    '<rect y="262" width="640" height="180" fill="#7fb3c4"/>' + boat(200, 262, 0.5, c.ochre) + wave(276, '#74abbe', 34, 7) + boat(452, 272, 1.15, c.terracotta) + wave(302, '#639eb4', 46, 9) + wave(334, '#5590a8', 58, 10) +
    '<path d="M0 372Q160 348 320 372T640 366V440H0Z" fill="#eef6f3"/><path d="M0 380Q160 356 320 380T640 374V440H0Z" fill="#f0d8a6"/>' + shells + star(80, 412, 13, c.terracotta, 5, -70, 0.45) + star(566, 420, 10, c.ochre, 5, -100, 0.45);
}

function rijstpapier() {
  const roll = dice(29);
  const loose = times(28, (i) => {
    const [x, y, turn] = [(i % 4) * 116 + 30 + roll() * 60, Math.floor(i / 4) * 96 + 20 + roll() * 54, roll() * 360];
    const fill = ['#dfe6cf', '#f5ddd0', '#f7e6c4', '#dbe7ea', '#e9dde8'][i % 5];
    return (i + Math.floor(i / 4)) % 2 ? times(3, (k) => leaf(x, y, 30, turn + (k - 1) * 46, fill)).join('') : `<g opacity=".55">${flower(x, y, 22, ['#f0c5b4', '#f3d59b', '#d5c0d3'][i % 3], 6, '#f6e3b4')}</g>`;
  }).join('');
  const fibres = times(130, () => {
    const [x, y] = [roll() * 440, roll() * 640];
    return `<path d="M${x.toFixed(1)} ${y.toFixed(1)}q${(roll() * 24 - 12).toFixed(1)} ${(roll() * 12 - 6).toFixed(1)} ${(roll() * 40 - 20).toFixed(1)} ${(roll() * 30 - 15).toFixed(1)}" fill="none" stroke="#d9c7a2" stroke-opacity=".5" stroke-width=".8"/>`;
  }).join('');
  return sheet(440, 640, '#fdf8ec') + fibres + loose;
}

/** In the order of their numbers: size and drawing. */
export const achtergronden = [
  [upright, heuvels()], [lying, zee()], [upright, rijstpapier()],
];
