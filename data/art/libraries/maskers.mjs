// The masks: what is white here becomes white on the design. All are drawn lying.
import { colours as c, darker, flower, times, sheet, lying } from './tekenen.mjs';

/** The outline of bows along an ellipse. */
const scallops = (cx, cy, rx, ry, count, out) => {
  const at = (i, grow) => `${(cx + (rx + grow) * Math.cos((i * 2 * Math.PI) / count)).toFixed(1)} ${(cy + (ry + grow) * Math.sin((i * 2 * Math.PI) / count)).toFixed(1)}`;
  return `M${at(0, 0)}${times(count, (i) => `Q${at(i + 0.5, out)} ${at(i + 1, 0)}`).join('')}Z`;
};

function medaillon() {
  const holes = times(40, (i) => {
    const turn = ((i + 0.5) * Math.PI) / 20;
    return `<circle cx="${(320 + 281 * Math.cos(turn)).toFixed(1)}" cy="${(220 + 181 * Math.sin(turn)).toFixed(1)}" r="5.4" fill="#fff"/>`;
  }).join('');
  const corners = [[44, 40], [596, 40], [44, 400], [596, 400]].map(([x, y]) => flower(x, y, 34, c.plum, 8, c.plum).replace(/fill="#[0-9a-f]+"/g, `fill="${darker(c.plum)}"`)).join('');
  return sheet(640, 440, '#fff') + `<path d="${scallops(320, 220, 280, 180, 40, 44)}" fill="${darker(c.plum)}"/>${holes}<ellipse cx="320" cy="220" rx="268" ry="168" fill="none" stroke="#fff" stroke-width="4"/>${corners}`;
}

function postzegel() {
  const along = (count, length) => times(count + 1, (i) => (i * length) / count);
  const teeth = [...along(24, 600).flatMap((x) => [[20 + x, 20], [20 + x, 420]]), ...along(16, 400).flatMap((y) => [[20, 20 + y], [620, 20 + y]])];
  return sheet(640, 440, '#fff') + `<rect x="20" y="20" width="600" height="400" fill="${darker(c.green)}"/>` +
    teeth.map(([x, y]) => `<circle cx="${x}" cy="${y}" r="8" fill="#fff"/>`).join('') +
    '<rect x="44" y="44" width="552" height="352" fill="none" stroke="#fff" stroke-width="6"/>';
}

/** In the order of their numbers: size and drawing. */
export const maskers = [
  [lying, medaillon()], [lying, postzegel()],
];
